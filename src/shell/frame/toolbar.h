#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace tavi {

/// A button of a toolbar: an icon or a title, and what a tap does.
class ToolbarButton : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the controllers")
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QString icon MEMBER icon CONSTANT)
  Q_PROPERTY(QString accessibleName READ accessibleName CONSTANT)
  Q_PROPERTY(QString accessibilityIdentifier MEMBER accessibilityIdentifier CONSTANT)
  Q_PROPERTY(QColor tintColor MEMBER tintColor CONSTANT)
  Q_PROPERTY(bool isOn READ isOn NOTIFY isOnChanged)

 public:
  QString title;                    ///< Shown when there is no icon, and read out otherwise.
  QString icon;                     ///< A member of `Icons`, or empty.
  QString accessibilityIdentifier;  ///< A name that tests find the button by.
  QColor tintColor;
  std::function<void()> action;

  QString accessibleName() const { return title; }

  /// Whether what the button switches is on.
  bool isOn() const { return isOn_; }
  void setOn(bool isOn);

  Q_INVOKABLE void tap() {
    if (action) action();
  }

 signals:
  void isOnChanged();

 private:
  bool isOn_ = false;
};

/// What the bar over a screen shows.
class Toolbar : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a toolbar controller")
  Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed)
  Q_PROPERTY(QFont titleFont READ titleFont NOTIFY changed)
  Q_PROPERTY(QColor titleColor READ titleColor NOTIFY changed)
  Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY changed)
  Q_PROPERTY(QColor statusBarColor READ statusBarColor NOTIFY changed)
  Q_PROPERTY(double height READ height NOTIFY changed)
  Q_PROPERTY(double topInset READ topInset NOTIFY changed)
  Q_PROPERTY(bool shrinksTitle READ shrinksTitle NOTIFY changed)
  Q_PROPERTY(QList<tavi::ToolbarButton*> leftViews READ leftViews NOTIFY buttonsChanged)
  Q_PROPERTY(QList<tavi::ToolbarButton*> rightViews READ rightViews NOTIFY buttonsChanged)

 public:
  using Buttons = std::vector<std::shared_ptr<ToolbarButton>>;

  struct Style {
    QFont titleFont;
    QColor titleColor;
    QColor backgroundColor = Qt::transparent;
    QColor statusBarColor = Qt::transparent;  ///< Transparent: no strip over the bar.
    double height = 56;
    double topInset = 0;
    bool shrinksTitle = false;
  };

  QString title() const { return title_; }
  void setTitle(const QString& title);

  const Style& style() const { return style_; }
  void setStyle(const Style& style);

  QList<ToolbarButton*> leftViews() const { return plain(leftViews_); }
  QList<ToolbarButton*> rightViews() const { return plain(rightViews_); }

  /// Replace all buttons of a side.
  void setLeftViews(Buttons buttons);
  void setRightViews(Buttons buttons);

  QFont titleFont() const { return style_.titleFont; }
  QColor titleColor() const { return style_.titleColor; }
  QColor backgroundColor() const { return style_.backgroundColor; }
  QColor statusBarColor() const { return style_.statusBarColor; }
  double height() const { return style_.height; }
  double topInset() const { return style_.topInset; }
  bool shrinksTitle() const { return style_.shrinksTitle; }

 signals:
  void changed();
  void buttonsChanged();

 private:
  static QList<ToolbarButton*> plain(const Buttons& buttons);
  static void retire(Buttons buttons);

  QString title_;
  Style style_;
  Buttons leftViews_;
  Buttons rightViews_;
};

}  // namespace tavi
