#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace tavi {

/// The tab of a page: what the tab bar shows of it and whether it can be opened.
class TabItem : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a page")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QColor titleColor READ titleColor NOTIFY changed)
  Q_PROPERTY(QFont font READ font NOTIFY changed)
  Q_PROPERTY(bool enabled READ isEnabled NOTIFY changed)

 public:
  using QObject::QObject;

  QString title() const { return title_; }
  QColor titleColor() const { return titleColor_; }
  QFont font() const { return font_; }
  bool isEnabled() const { return isEnabled_; }

  void setTitle(const QString& title);
  void setFont(const QFont& font);

  /// An enabled tab has the dark title colour, a disabled one the system's gray.
  void setEnabled(bool isEnabled);

 signals:
  void changed();

 private:
  QString title_;
  QColor titleColor_;
  QFont font_;
  bool isEnabled_ = true;
};

}  // namespace tavi
