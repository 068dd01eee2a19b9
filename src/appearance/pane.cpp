#include "appearance/pane.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QCoreApplication>
#include <QQuickWindow>
#include <algorithm>
#include <array>
#include <utility>

namespace tavi {

namespace {

using Item = QQuickItem;

/// What QML wrote as `Accessible.…`, or none for an item that is no part of the tree.
QObject* accessibleOf(const QObject& object) {
  const QObjectList& children = object.children();
  const auto found = std::ranges::find_if(
      children, [](const QObject* child) { return child->inherits("QQuickAccessibleAttached"); });
  return found == children.end() ? nullptr : *found;
}

/// The nearest items below that are part of the tree.
void appendParts(const Item& item, QList<QAccessibleInterface*>& parts) {
  for (Item* child : item.childItems()) {
    const QObject* accessible = accessibleOf(*child);
    const bool isIgnored = accessible != nullptr && accessible->property("ignored").toBool();
    auto* part = isIgnored ? nullptr : QAccessible::queryAccessibleInterface(child);
    if (part)
      parts.append(part);
    else
      appendParts(*child, parts);
  }
}

class AccessibleItem : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  explicit AccessibleItem(Item& item)
      : QAccessibleObject(&item), isButton_(item.inherits("QQuickAbstractButton")) {
    QObject::connect(&item, &Item::enabledChanged, &item, [&item] {
      QAccessible::State change;
      change.disabled = true;
      QAccessibleStateChangeEvent event(&item, change);
      QAccessible::updateAccessibility(&event);
    });
  }

  QWindow* window() const override { return item().window(); }
  QRect rect() const override {
    const QRect place = item().mapRectToScene(item().boundingRect()).toAlignedRect();
    return window() ? QRect(window()->mapToGlobal(place.topLeft()), place.size()) : QRect();
  }

  QAccessibleInterface* parent() const override {
    const Item* root = item().window() ? item().window()->contentItem() : nullptr;
    for (Item* above = item().parentItem(); above && above != root; above = above->parentItem())
      if (auto* part = QAccessible::queryAccessibleInterface(above)) return part;
    return QAccessible::queryAccessibleInterface(window());
  }
  int childCount() const override { return static_cast<int>(parts().size()); }
  QAccessibleInterface* child(int index) const override { return parts().value(index); }
  int indexOfChild(const QAccessibleInterface* part) const override {
    return static_cast<int>(parts().indexOf(part));
  }

  QAccessible::Role role() const override {
    const QVariant own = source().property("accessibleRole");
    return static_cast<QAccessible::Role>((own.isValid() ? own : written("role")).toInt());
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return written("name").toString();
    return kind == QAccessible::Description ? written("description").toString() : QString();
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.disabled = !item().isEnabled();
    state.invisible = !item().isVisible() || window() == nullptr || !window()->isVisible();
    state.offscreen =
        window() != nullptr && !QRect(window()->mapToGlobal(QPoint()), window()->size()).intersects(rect());
    state.modal = source().property("modal").toBool();
    state.focusable = isButton_ && item().activeFocusOnTab();
    state.focused = item().hasActiveFocus() && isButton_;
    state.pressed = item().property("down").toBool();
    state.checkable = source().property("isCheckable").toBool();
    state.checked = source().property("isChecked").toBool();
    state.selectable = written("selectable").toBool();
    state.selected = written("selected").toBool();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ActionInterface && isButton_)
      return static_cast<QAccessibleActionInterface*>(this);
    return QAccessibleObject::interface_cast(type);
  }
  QStringList actionNames() const override {
    QStringList names{pressAction()};
    if (state().focusable) names.append(setFocusAction());
    return names;
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }
  void doAction(const QString& name) override {
    if (!item().isEnabled()) return;
    if (name == setFocusAction()) item().forceActiveFocus(Qt::TabFocusReason);
    if (name == pressAction()) QMetaObject::invokeMethod(&item(), "clicked");
  }

 private:
  Item& item() const { return static_cast<Item&>(*object()); }
  /// What QML gives the properties: the popup behind its item.
  const QObject& source() const {
    return item().inherits("QQuickPopupItem") ? *item().QObject::parent() : item();
  }
  QVariant written(const char* property) const {
    const QObject* accessible = accessibleOf(item());
    return accessible ? accessible->property(property) : QVariant();
  }
  QList<QAccessibleInterface*> parts() const {
    QList<QAccessibleInterface*> parts;
    if (!item().property("isCovered").toBool()) appendParts(item(), parts);
    return parts;
  }

  bool isButton_;
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
  constexpr std::array<QStringView, 3> ours{u"QQuickAbstractButton", u"QQuickPopupItem", u"tavi::Pane"};
  if (std::ranges::find(ours, QStringView(className)) == ours.end() || accessibleOf(*object) == nullptr)
    return nullptr;
  return std::make_unique<AccessibleItem>(static_cast<Item&>(*object)).release();  // Qt owns it
}

void installInterfaces() {
  QAccessible::installFactory(makeInterface);
}

Q_COREAPP_STARTUP_FUNCTION(installInterfaces)

}  // namespace

void Pane::setCovered(bool isCovered) {
  if (std::exchange(isCovered_, isCovered) != isCovered) emit changed();
}

}  // namespace tavi
