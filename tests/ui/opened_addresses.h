#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

namespace veyruna::tests {

/// Takes the place of the browser and the file manager while it lives: remembers what they would
/// have opened.
class OpenedAddresses final : public QObject {
  Q_OBJECT

 public:
  OpenedAddresses() {
    for (const char* const scheme : schemes) {
      QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "open");
    }
  }
  ~OpenedAddresses() override {
    for (const char* const scheme : schemes) {
      QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
    }
  }
  OpenedAddresses(const OpenedAddresses&) = delete;
  OpenedAddresses& operator=(const OpenedAddresses&) = delete;

  [[nodiscard]] const QList<QUrl>& addresses() const { return addresses_; }

 public Q_SLOTS:
  void open(const QUrl& address) { addresses_.append(address); }

 private:
  static constexpr const char* schemes[] = {"file", "https", "http"};
  QList<QUrl> addresses_;
};

}  // namespace veyruna::tests
