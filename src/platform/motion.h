#pragma once

#include <QObject>

namespace tavi {

/// Whether the user has asked the desktop for less motion. The desktop portal is asked once, without waiting
/// for it; where there is none, motion stays as it is.
class Motion : public QObject {
  Q_OBJECT

 public:
  static Motion& shared();

  bool isReduced() const { return isReduced_; }

  /// For tests, and for who knows better than the desktop.
  void setReduced(bool isReduced);

  /// Asks the portal. To be called once the application object exists.
  void followSystem();

 signals:
  void changed();

 private:
  bool isReduced_ = false;
};

}  // namespace tavi
