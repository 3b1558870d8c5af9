#include "export/sealed_page.h"

#include <QColor>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInfo>
#include <unistd.h>

namespace veyruna::exports {

namespace {

bool isData(const QUrl& url) {
  return url.scheme() == QStringLiteral("data");
}

}  // namespace

void prepareWebEngine() {
  if (geteuid() == 0) {
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  }
}

void DataOnlyInterceptor::interceptRequest(QWebEngineUrlRequestInfo& request) {
  request.block(!isData(request.requestUrl()));
}

SealedProfile::SealedProfile(QObject* parent) : QWebEngineProfile(parent) {
  setUrlRequestInterceptor(&interceptor_);
  setHttpCacheType(QWebEngineProfile::NoCache);
  setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
}

SealedPage::SealedPage(SealedProfile& profile, QObject* parent) : QWebEnginePage(&profile, parent) {
  settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
  settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
  settings()->setAttribute(QWebEngineSettings::LocalStorageEnabled, false);
  settings()->setAttribute(QWebEngineSettings::PluginsEnabled, false);
  setBackgroundColor(Qt::transparent);
}

bool SealedPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
  // A document given to setHtml arrives as typed data.
  return isMainFrame && type == NavigationTypeTyped && isData(url);
}

}  // namespace veyruna::exports
