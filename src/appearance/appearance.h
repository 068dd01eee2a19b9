#pragma once

#include <QObject>
#include <optional>

namespace tavi {

/// Whether the interface is shown light or dark. It follows the system's palette unless it is forced.
class Appearance : public QObject {
  Q_OBJECT

 public:
  static Appearance& shared();

  bool isDark() const;

  /// Shows the interface dark or light whatever the system says; absent follows the system again.
  void force(std::optional<bool> isDark);

  /// Follows the system from now on. To be called once the application object exists.
  void followSystem();

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void update();

  std::optional<bool> forced_;
  bool isSystemDark_ = false;
};

}  // namespace tavi
