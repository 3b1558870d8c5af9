// Nothing but the given document loads: no request leaves, no script runs, no file is read.
#include "export/sealed_page.h"

#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <gtest/gtest.h>

#include "export/pdf_exporter.h"
#include "tests/export/pdf_reader.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;

/// Counts who comes to a port of this machine.
class Listener {
 public:
  Listener() {
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
      ++visitors_;
      server_.nextPendingConnection()->close();
    });
    if (!server_.listen(QHostAddress::LocalHost)) {
      throw std::runtime_error("cannot listen");
    }
  }
  [[nodiscard]] QString address() const {
    return u"http://127.0.0.1:%1/"_s.arg(server_.serverPort());
  }
  [[nodiscard]] int visitors() const { return visitors_; }

 private:
  QTcpServer server_;
  int visitors_ = 0;
};

/// A picture of one red pixel, within the document.
const QString ownPicture =
    u"data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mP8z8DwHwAFBQIAX8jx0gAAAABJRU5ErkJggg=="_s;

/// A document that asks for all it can.
QString greedyDocument(const QString& address, const QString& file) {
  return uR"(<!DOCTYPE html><html><head><meta charset="utf-8">
<link rel="stylesheet" href="%1style.css"><link rel="preconnect" href="%1">
<link rel="dns-prefetch" href="%1"><link rel="prefetch" href="%1next">
<style>@import "%1import.css"; body { background: url(%1background.png); }
@font-face { font-family: far; src: url(%1font.woff); } p { font-family: far; }</style>
<script src="%1script.js"></script></head>
<body><p>kept</p><script>document.body.textContent = 'scripted';</script>
<img src="%1picture.png"><img src="%2"><img src="%3"><video src="%1video" autoplay></video>
<svg><image href="%1inner.png" width="9" height="9"/><use href="%1use.svg#a"/></svg>
</body></html>)"_s.arg(address, file, ownPicture);
}

/// A document that leads elsewhere, itself and in its frames.
QString wanderingDocument(const QString& address) {
  return uR"(<meta http-equiv="refresh" content="0; url=%1refresh"><iframe src="%1frame"></iframe>
<object data="%1object"></object><embed src="%1embed"><p>kept</p>)"_s.arg(address);
}

void waitForLoad(QWebEnginePage& page, const QString& html) {
  QEventLoop loop;
  QObject::connect(&page, &QWebEnginePage::loadFinished, &loop, &QEventLoop::quit);
  QTimer::singleShot(5'000, &loop, &QEventLoop::quit);
  page.setHtml(html);
  loop.exec();
  // What follows the load, such as the refresh, comes soon.
  QTimer::singleShot(500, &loop, &QEventLoop::quit);
  loop.exec();
}

TEST(SealedPage, SendsNoRequest) {
  const Listener listener;
  exports::SealedProfile profile;
  exports::SealedPage page(profile);
  waitForLoad(page, greedyDocument(listener.address(), u"x"_s));
  EXPECT_EQ(listener.visitors(), 0);
  QString text;
  QEventLoop loop;
  page.toPlainText([&](const QString& plain) {
    text = plain;
    loop.quit();
  });
  loop.exec();
  EXPECT_TRUE(text.contains(u"kept"_s)) << text.toStdString();
}

TEST(SealedPage, LeadsNowhere) {
  const Listener listener;
  exports::SealedProfile profile;
  exports::SealedPage page(profile);
  waitForLoad(page, wanderingDocument(listener.address()));
  EXPECT_EQ(listener.visitors(), 0);
}

TEST(OrdinaryPage, LeadsElsewhere) {
  const Listener listener;
  QWebEngineProfile profile;
  QWebEnginePage page(&profile);
  waitForLoad(page, wanderingDocument(listener.address()));
  EXPECT_GT(listener.visitors(), 0);
}

TEST(OrdinaryPage, SendsRequests) {
  const Listener listener;
  QWebEngineProfile profile;
  QWebEnginePage page(&profile);
  waitForLoad(page, greedyDocument(listener.address(), u"x"_s));
  EXPECT_GT(listener.visitors(), 0);
}

TEST(SealedPage, ShowsOneDocumentAfterTheOther) {
  exports::SealedProfile profile;
  exports::SealedPage page(profile);
  for (const QString& word : {u"first"_s, u"second"_s}) {
    waitForLoad(page, u"<p>"_s + word + u"</p>"_s);
    QString text;
    QEventLoop loop;
    page.toPlainText([&](const QString& plain) {
      text = plain;
      loop.quit();
    });
    loop.exec();
    EXPECT_EQ(text.trimmed(), word);
  }
}

TEST(SealedPage, LeavesNothingOnDisk) {
  const exports::SealedProfile profile;
  EXPECT_TRUE(profile.isOffTheRecord());
}

TEST(Rendering, KeepsToTheDocument) {
  const Listener listener;
  const tests::Folder folder;
  QImage(37, 41, QImage::Format_RGB32).save(folder / u"picture.png"_s);
  const QByteArray pdf = tests::rendered(
      greedyDocument(listener.address(), u"file://"_s + folder / u"picture.png"_s), {612, 792});
  EXPECT_EQ(listener.visitors(), 0);
  const tests::PdfReader reader(pdf);
  EXPECT_EQ(reader.lines(), QStringList{u"kept"_s});
  EXPECT_TRUE(reader.imageSizes().contains(u"1x1"_s))
      << reader.imageSizes().join(u' ').toStdString();
  EXPECT_FALSE(reader.imageSizes().contains(u"37x41"_s));
}

}  // namespace
}  // namespace veyruna
