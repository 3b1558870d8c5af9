#include "drawing/svg_reader.h"

#include <QHash>
#include <QXmlStreamReader>
#include <cmath>
#include <initializer_list>
#include <optional>

#include "drawing/path_reader.h"

namespace veyruna::drawing {

namespace {

/// What may be drawn along, or clipped by, under its name.
struct Definitions {
  QHash<QString, Rim> rims;
  QHash<QString, BeginClipped> clips;
};

/// What stands between a beginning and an end; nothing where the text lacks either.
std::optional<QStringView> between(QStringView begin, QStringView text, QChar end) {
  return text.size() > begin.size() && text.startsWith(begin) && text.endsWith(end)
             ? std::optional(text.sliced(begin.size()).chopped(1))
             : std::nullopt;
}

class SvgReader {
 public:
  explicit SvgReader(const QByteArray& svg) : xml_(svg) {}

  Picture read() {
    if (!xml_.readNextStartElement()) {
      refuseXml();
    }
    if (xml_.name() != u"svg") {
      refuse(QStringLiteral("<%1> is no chart; its text begins with <svg>").arg(xml_.name()));
    }
    begin({"viewBox"});
    picture_.viewBox = viewBox();
    readShapes();
    while (!xml_.atEnd()) {
      xml_.readNext();
    }
    if (xml_.hasError()) {
      refuseXml();
    }
    return std::move(picture_);
  }

 private:
  /// All elements up to the end of the one that was begun.
  void readShapes() {
    while (nextChild()) {
      const QStringView name = xml_.name();
      if (name == u"circle") {
        readCircle();
      } else if (name == u"line") {
        readLine();
      } else if (name == u"path") {
        readOutline();
      } else if (name == u"text") {
        readText();
      } else if (name == u"g") {
        readGroup();
      } else if (name == u"defs") {
        readDefinitions();
      } else {
        refuseElement("circle, line, path, text, g and defs");
      }
    }
  }

  /// The next element inside the one that was begun; false at its end. Letters between are refused.
  bool nextChild() {
    while (xml_.readNext() != QXmlStreamReader::EndElement) {
      if (xml_.hasError() || xml_.atEnd()) {
        refuseXml();
      }
      if (xml_.isStartElement()) {
        return true;
      }
      if (xml_.isCharacters() && !xml_.isWhitespace()) {
        refuse(QStringLiteral("\"%1\" stands outside a text")
                   .arg(xml_.text().toString().simplified()));
      }
      if (!xml_.isCharacters() && !xml_.isComment()) {
        refuse(QStringLiteral("neither an element nor a text"));
      }
    }
    return false;
  }

  void endEmpty() {
    if (nextChild()) {
      refuse(QStringLiteral("<%1> stands where nothing may").arg(xml_.name()));
    }
  }

  void readCircle() {
    begin({"cx", "cy", "r", "fill", "stroke", "stroke-width", "stroke-weight"});
    picture_.shapes.emplace_back(Circle{{number("cx"), number("cy")},
                                        length("r"),
                                        color("fill", Qt::black),
                                        color("stroke", Qt::transparent),
                                        length("stroke-width", 1.0)});
    endEmpty();
  }

  void readLine() {
    begin({"x1", "y1", "x2", "y2", "stroke", "stroke-width", "opacity"});
    QColor stroke = color("stroke", Qt::transparent);
    const double opacity = number("opacity", 1.0);
    if (opacity < 0.0 || opacity > 1.0) {
      refuseAttribute("opacity", "a number from 0 to 1");
    }
    stroke.setAlphaF(static_cast<float>(opacity) * stroke.alphaF());
    picture_.shapes.emplace_back(Line{{number("x1"), number("y1")},
                                      {number("x2"), number("y2")},
                                      stroke,
                                      length("stroke-width", 1.0)});
    endEmpty();
  }

  void readOutline() {
    begin({"d", "fill"});
    const std::optional<QPainterPath> path = outlineOf(attribute("d"));
    if (!path) {
      refuseAttribute("d", "moves (M), upright arcs (A) and closings (Z)");
    }
    picture_.shapes.emplace_back(Outline{*path, color("fill", Qt::black)});
    endEmpty();
  }

  void readText() {
    begin({"x", "y", "fill", "font-family", "font-size", "text-anchor"});
    LevelText text{lettering(), {number("x", 0.0), number("y", 0.0)}, isCentred()};
    QString letters;
    while (xml_.readNext() != QXmlStreamReader::EndElement) {
      if (xml_.isStartElement() && xml_.name() == u"textPath" && letters.trimmed().isEmpty()) {
        readBentText(text.letters);
        endEmpty();
        return;
      }
      if (xml_.hasError() || xml_.atEnd()) {
        refuseXml();
      }
      if (!xml_.isCharacters()) {
        refuse(QStringLiteral("a text holds letters or one textPath"));
      }
      letters += xml_.text();
    }
    text.letters.text = letters.simplified();
    picture_.shapes.emplace_back(std::move(text));
  }

  void readBentText(Lettering letters) {
    begin({"xlink:href", "startOffset"});
    QStringView href = attribute("xlink:href");
    const auto rim = definitions_.rims.constFind(href.mid(1).toString());
    if (!href.startsWith(u'#') || rim == definitions_.rims.constEnd()) {
      refuseAttribute("xlink:href", "\"#\" and the name of a full circle in defs");
    }
    const std::optional<QStringView> offset = between(u"", attribute("startOffset"), u'%');
    bool isNumber = false;
    const double percent = offset ? offset->toDouble(&isNumber) : 0.0;
    if (!isNumber || !std::isfinite(percent)) {
      refuseAttribute("startOffset", "a number of percent");
    }
    while (xml_.readNext() == QXmlStreamReader::Characters) {
      letters.text += xml_.text();
    }
    if (!xml_.isEndElement()) {
      refuse(QStringLiteral("a textPath holds letters alone"));
    }
    letters.text = letters.text.simplified();
    picture_.shapes.emplace_back(BentText{std::move(letters), *rim, percent / 100.0});
  }

  void readGroup() {
    begin({"transform", "clip-path"});
    constexpr int deepest = 16;  // charts need two
    if (++depth_ > deepest) {
      refuse(QStringLiteral("a g stands in more than %1 others").arg(deepest - 1));
    }
    const bool isClipped = has("clip-path");
    if (isClipped == has("transform")) {
      refuse(QStringLiteral("a g has either a transform or a clip-path"));
    }
    picture_.shapes.emplace_back(isClipped ? Shape(clip()) : Shape(rotation()));
    readShapes();
    picture_.shapes.emplace_back(EndGroup{});
    --depth_;
  }

  /// Paths that a text may run along, and circles that may clip; what is not used may be anything.
  void readDefinitions() {
    begin({});
    while (nextChild()) {
      if (xml_.name() == u"path") {
        begin({"id", "d", "fill"});
        const std::optional<Rim> rim = rimOf(attribute("d"));
        if (!rim) {
          refuseAttribute("d", "a full circle of two clockwise half turns");
        }
        definitions_.rims.insert(attribute("id").toString(), *rim);
        endEmpty();
      } else if (xml_.name() == u"clipPath") {
        begin({"id"});
        const QString id = attribute("id").toString();
        if (!nextChild() || xml_.name() != u"circle") {
          refuse(QStringLiteral("a clipPath holds one circle"));
        }
        begin({"cx", "cy", "r"});
        definitions_.clips.insert(id, {{number("cx"), number("cy")}, length("r")});
        endEmpty();
        endEmpty();
      } else {
        refuseElement("path and clipPath");
      }
    }
  }

  [[nodiscard]] QRectF viewBox() const {
    const QList<QStringView> words = attribute("viewBox").split(u' ', Qt::SkipEmptyParts);
    QList<double> numbers;
    for (const QStringView word : words) {
      bool isNumber = false;
      numbers.append(word.toDouble(&isNumber));
      if (!isNumber || !std::isfinite(numbers.back())) {
        numbers.clear();
        break;
      }
    }
    if (numbers.size() != 4 || numbers[2] <= 0.0 || numbers[3] <= 0.0) {
      refuseAttribute("viewBox", "left, top, width and height");
    }
    return {numbers[0], numbers[1], numbers[2], numbers[3]};
  }

  [[nodiscard]] BeginClipped clip() const {
    const std::optional<QStringView> id = between(u"url(#", attribute("clip-path"), u')');
    const auto found =
        id ? definitions_.clips.constFind(id->toString()) : definitions_.clips.constEnd();
    if (found == definitions_.clips.constEnd()) {
      refuseAttribute("clip-path", "url(#NAME) of a clipPath in defs");
    }
    return *found;
  }

  [[nodiscard]] BeginRotated rotation() const {
    const std::optional<QStringView> inside = between(u"rotate(", attribute("transform"), u')');
    QList<double> numbers;
    if (inside) {
      for (const QStringView word : inside->split(u',')) {
        bool isNumber = false;
        const double number = word.trimmed().toDouble(&isNumber);
        if (isNumber && std::isfinite(number)) {
          numbers.append(number);
        }
      }
    }
    if (numbers.size() != 3) {
      refuseAttribute("transform", "rotate(DEGREES, X, Y)");
    }
    return {numbers[0], {numbers[1], numbers[2]}};
  }

  [[nodiscard]] Lettering lettering() const {
    if (attribute("font-family") != u"Arial") {
      refuseAttribute("font-family", "Arial");
    }
    return {{}, color("fill", Qt::black), length("font-size")};
  }

  [[nodiscard]] bool isCentred() const {
    if (!has("text-anchor")) {
      return false;
    }
    if (attribute("text-anchor") != u"middle") {
      refuseAttribute("text-anchor", "middle");
    }
    return true;
  }

  /// Takes the attributes of the element that begins; any but the named ones, and those that only
  /// say that this is SVG, are refused.
  void begin(std::initializer_list<const char*> understood) {
    attributes_ = xml_.attributes();
    for (const QXmlStreamAttribute& attribute : attributes_) {
      bool isUnderstood = false;
      for (const char* const name : understood) {
        isUnderstood = isUnderstood || attribute.qualifiedName() == QLatin1StringView(name);
      }
      if (!isUnderstood) {
        QStringList names;
        for (const char* const name : understood) {
          names.append(QLatin1StringView(name));
        }
        refuse(QStringLiteral("<%1> with %2=\"%3\"; understood are %4")
                   .arg(xml_.name(), attribute.qualifiedName(), attribute.value(),
                        names.isEmpty() ? QStringLiteral("no attributes") : names.join(u", ")));
      }
    }
  }

  [[nodiscard]] bool has(const char* name) const {
    return attributes_.hasAttribute(QLatin1StringView(name));
  }

  [[nodiscard]] QStringView attribute(const char* name) const {
    return attributes_.value(QLatin1StringView(name));
  }

  [[nodiscard]] double number(const char* name) const {
    bool isNumber = false;
    const double number = attribute(name).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
      refuseAttribute(name, "a number");
    }
    return number;
  }

  [[nodiscard]] double number(const char* name, double missing) const {
    return has(name) ? number(name) : missing;
  }

  [[nodiscard]] double length(const char* name) const {
    const double length = number(name);
    if (length < 0.0) {
      refuseAttribute(name, "a length of 0 or more");
    }
    return length;
  }

  [[nodiscard]] double length(const char* name, double missing) const {
    return has(name) ? length(name) : missing;
  }

  [[nodiscard]] QColor color(const char* name, const QColor& missing) const {
    if (!has(name)) {
      return missing;
    }
    const QStringView text = attribute(name);
    if (text == u"none") {
      return Qt::transparent;
    }
    const QColor color = QColor::fromString(text);
    if (!color.isValid()) {
      refuseAttribute(name, "none, a colour's name or # and six hexadecimal digits");
    }
    return color;
  }

  [[noreturn]] void refuseAttribute(const char* name, const char* accepted) const {
    refuse(QStringLiteral("<%1> with %2=\"%3\"; accepted is %4")
               .arg(xml_.name(), QLatin1StringView(name), attribute(name),
                    QLatin1StringView(accepted)));
  }

  [[noreturn]] void refuseElement(const char* understood) const {
    refuse(QStringLiteral("<%1> is not understood; understood are %2")
               .arg(xml_.name(), QLatin1StringView(understood)));
  }

  [[noreturn]] void refuseXml() const {
    refuse(xml_.hasError() ? xml_.errorString() : QStringLiteral("it ends too early"));
  }

  [[noreturn]] void refuse(const QString& why) const {
    throw PictureError(QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(why).toStdString());
  }

  QXmlStreamReader xml_;
  QXmlStreamAttributes attributes_;  ///< of the element that was begun
  int depth_ = 0;                    ///< of groups
  Definitions definitions_;
  Picture picture_;
};

}  // namespace

Picture readSvg(const QByteArray& svg) {
  return svg.isEmpty() ? Picture{} : SvgReader(svg).read();
}

}  // namespace veyruna::drawing
