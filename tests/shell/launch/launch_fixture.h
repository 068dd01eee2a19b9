#pragma once

#include <QCoreApplication>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <memory>

#include <gtest/gtest.h>

#include "shell/launch/app_delegate.h"

namespace tavi {

/// A launch over a store of its own, with nobody to ask for remote values.
class LaunchTest : public testing::Test {
 protected:
  /// What a transition has replaced is released by the event loop, and must not outlive the engine.
  void TearDown() override {
    delegate.reset();
    QCoreApplication::processEvents();
  }

  void launch() {
    delegate = std::make_unique<AppDelegate>(engine, services);
    delegate->didFinishLaunching();
  }

  CalculateViewController& openCalculatePage() {
    auto* toolbarController = qobject_cast<AppToolbarController*>(delegate->drawer()->rootController());
    auto* tabs = qobject_cast<AppPageTabBarController*>(toolbarController->rootController());
    return *qobject_cast<CalculateViewController*>(tabs->selectedController());
  }

  QTemporaryDir folder;
  PreferenceStore preferences{folder.filePath("preferences.sqlite")};
  CalcManager calcManager{preferences};
  RemoteConfigService remoteConfig{{}, folder.filePath("remote.sqlite")};
  RemoteConfigManager remoteConfigManager{remoteConfig};
  QQmlEngine engine;
  const AppServices services{remoteConfig, remoteConfigManager, calcManager, preferences};
  std::unique_ptr<AppDelegate> delegate;
};

}  // namespace tavi
