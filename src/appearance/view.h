#pragma once

#include <QColor>
#include <QPointF>
#include <QQmlEngine>
#include <QQuickItem>
#include <vector>

namespace tavi {

/// A soft shadow under an item. Offset and radius in device-independent pixels, opacity 0 to 1.
struct LayerShadow {
  Q_GADGET
  QML_ANONYMOUS
  Q_PROPERTY(QColor color MEMBER color)
  Q_PROPERTY(double opacity MEMBER opacity)
  Q_PROPERTY(QPointF offset MEMBER offset)
  Q_PROPERTY(double radius MEMBER radius)

 public:
  QColor color;
  double opacity = 0;  ///< 0 is no shadow.
  QPointF offset;
  double radius = 0;

  bool operator==(const LayerShadow&) const = default;
};

/// What makes a QML item a view of the system: attached as `View.kind` and `View.tag` where the item is
/// written. Whoever styles views writes the results here and the item binds to them.
///
///     Rectangle { View.kind: View.Plain; View.tag: 101; color: View.backgroundColor }
class View : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("View is attached to items")
  QML_ATTACHED(tavi::View)
  Q_PROPERTY(tavi::View::Kind kind READ kind WRITE setKind NOTIFY kindChanged)
  Q_PROPERTY(int tag READ tag WRITE setTag NOTIFY tagChanged)
  Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY styleChanged)
  Q_PROPERTY(QColor titleColor READ titleColor WRITE setTitleColor NOTIFY styleChanged)
  Q_PROPERTY(QColor tintColor READ tintColor WRITE setTintColor NOTIFY styleChanged)
  Q_PROPERTY(QColor imageTintColor READ imageTintColor WRITE setImageTintColor NOTIFY styleChanged)
  Q_PROPERTY(QColor filledColor READ filledColor WRITE setFilledColor NOTIFY styleChanged)
  Q_PROPERTY(double alpha READ alpha WRITE setAlpha NOTIFY styleChanged)
  Q_PROPERTY(tavi::LayerShadow shadow READ shadow WRITE setShadow NOTIFY styleChanged)

 public:
  /// What a view is, where styling goes by exact class. A derived control sets another kind.
  enum class Kind {
    Other,
    Plain,
    Stack,
    Button,
    FlatButton,
    FloatingButton,
    IconButton,
    Image,
    Stars,
    TextField,
    Label,
    SegmentedControl,
  };
  Q_ENUM(Kind)

  explicit View(QObject* item);

  static View* qmlAttachedProperties(QObject* item);

  /// The view attached to the item, or none.
  static View* of(const QQuickItem* item);

  /// The nearest items below that are views, in the order of their creation. Items that are no views are
  /// looked through.
  static std::vector<QQuickItem*> subviews(const QQuickItem& item);

  Kind kind() const { return kind_; }
  void setKind(Kind kind);

  /// True for each kind of button.
  bool isButton() const;

  int tag() const { return tag_; }
  void setTag(int tag);

  /// Colours begin transparent, except title and tint colours, which are that of text until they are set.
  QColor backgroundColor() const { return backgroundColor_; }
  void setBackgroundColor(const QColor& color);
  QColor titleColor() const { return orLabel(titleColor_); }
  void setTitleColor(const QColor& color);
  QColor tintColor() const { return orLabel(tintColor_); }
  void setTintColor(const QColor& color);
  QColor imageTintColor() const { return orLabel(imageTintColor_); }
  void setImageTintColor(const QColor& color);
  QColor filledColor() const { return filledColor_; }
  void setFilledColor(const QColor& color);
  double alpha() const { return alpha_; }
  void setAlpha(double alpha);
  LayerShadow shadow() const { return shadow_; }
  void setShadow(const LayerShadow& shadow);

 signals:
  void kindChanged();
  void tagChanged();
  void styleChanged();

 private:
  static QColor orLabel(const QColor& color);
  template <typename Value>
  void assign(Value& member, const Value& value);

  Kind kind_ = Kind::Other;
  int tag_ = 0;
  QColor backgroundColor_ = Qt::transparent;
  QColor titleColor_;
  QColor tintColor_;
  QColor imageTintColor_;
  QColor filledColor_ = Qt::transparent;
  double alpha_ = 1;
  LayerShadow shadow_;
};

}  // namespace tavi

QML_DECLARE_TYPEINFO(tavi::View, QML_HAS_ATTACHED_PROPERTIES)
