#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "shell/frame/view_controller.h"

namespace tavi {

/// A page that notes what happens to it, as "name event".
class RecordingController : public ViewController {
 public:
  RecordingController(QString name, QStringList& events) : name_(std::move(name)), events_(events) {
    setView(std::make_unique<QQuickItem>());
  }
  ~RecordingController() override { note("gone"); }

 protected:
  void viewDidLoad() override { note("loads"); }
  void viewWillAppear() override { note("will appear"); }
  void viewDidAppear() override { note("did appear"); }
  void viewWillDisappear() override { note("will disappear"); }

 private:
  void note(const char* event) { events_.append(name_ + u' ' + QLatin1String(event)); }

  QString name_;
  QStringList& events_;
};

}  // namespace tavi
