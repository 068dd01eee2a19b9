#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace tavi {

/// What a child says when the system does not let it set its scene.
constexpr int childCannotRun = 77;

/// The body of a second process, by name; answers its exit code, 0 for success.
int runStoreChild(const QString& name, const QString& path);

/// Values of every kind and their borders, as the child "write-kinds" writes them under the keys "0", "1", …
QVariantList valuesOfEveryKind();

}  // namespace tavi
