#pragma once

#include <QUrl>
#include <functional>

namespace tavi {

/// Opens addresses and files outside the application. Addresses come from remote records, so only web and
/// mail ones ever leave.
class Links {
 public:
  using Opener = std::function<bool(const QUrl&)>;
  using Completion = std::function<void(bool isOpened)>;

  static Links& shared();

  Links();

  /// True for a valid address that some program can be expected to open. Links to other applications of the
  /// family are never openable where the system does not say whether they are installed.
  bool canOpen(const QUrl& address) const;

  /// Opens the address and then calls the completion, if any, with whether that worked.
  void open(const QUrl& address, const Completion& completion = {}) const;

  /// Opens a file of the application's own making with the program for its kind; whether that worked.
  bool openFile(const QString& path) const { return open_(QUrl::fromLocalFile(path)); }

  /// Replaces what asks and what opens; empty ones restore the system's.
  void setHandler(Opener canOpen, Opener open);

 private:
  Opener canOpen_;
  Opener open_;
};

}  // namespace tavi
