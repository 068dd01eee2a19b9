#pragma once

#include <QQmlEngine>
#include <QString>
#include <QUrl>
#include <QVariantMap>
#include <memory>

namespace tavi {

/// Where a QML file of the module is, such as "shell/frame/AppWindow.qml".
QUrl pageUrl(const QString& page);

/// Makes the root object of a QML file of the module with its required properties. A file that does not load
/// is a fatal stop.
std::unique_ptr<QObject> loadPageObject(QQmlEngine& engine, const QString& page,
                                        const QVariantMap& properties);

/// The same for a root of a known class; another class is a fatal stop.
template <typename Root>
std::unique_ptr<Root> loadPage(QQmlEngine& engine, const QString& page, const QVariantMap& properties) {
  std::unique_ptr<QObject> object = loadPageObject(engine, page, properties);
  std::unique_ptr<Root> root(qobject_cast<Root*>(object.get()));
  if (root) std::ignore = object.release();
  return root;
}

}  // namespace tavi
