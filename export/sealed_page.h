#pragma once

#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>

namespace veyruna::exports {

/// To be called before the first object of the web engine is made: as root it runs only without
/// its sandbox.
void prepareWebEngine();

/// Lets through only what a document carries in itself, as data.
class DataOnlyInterceptor final : public QWebEngineUrlRequestInterceptor {
  Q_OBJECT

 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};

/// A profile that leaves nothing on disk and reaches neither network nor files. To be deleted after
/// its pages.
class SealedProfile final : public QWebEngineProfile {
  Q_OBJECT

 public:
  explicit SealedProfile(QObject* parent = nullptr);

 private:
  DataOnlyInterceptor interceptor_;
};

/// A transparent page that shows the documents it is given through setHtml and nothing else: page
/// scripts are off, and no link, frame or refresh leads anywhere.
class SealedPage final : public QWebEnginePage {
  Q_OBJECT

 public:
  explicit SealedPage(SealedProfile& profile, QObject* parent = nullptr);

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
};

}  // namespace veyruna::exports
