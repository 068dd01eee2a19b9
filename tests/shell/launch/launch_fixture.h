#pragma once

#include <QCoreApplication>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <memory>

#include <gtest/gtest.h>

#include "shell/launch/app_delegate.h"

namespace tavi {

/// Asks nobody for remote values and notes when it is asked.
class RecordingRemoteConfig : public RemoteConfigService {
 public:
  using RemoteConfigService::RemoteConfigService;

  QByteArray dataValue(const QString& key) const override {
    if (whenRead) whenRead();
    return RemoteConfigService::dataValue(key);
  }
  void fetch(std::chrono::seconds expiry, FetchCompletion completion) override {
    expiries.push_back(expiry);
    pending = std::move(completion);
  }
  void activate(ActivateCompletion completion) override {
    ++activations;
    completion(true);
  }

  std::function<void()> whenRead;
  std::vector<std::chrono::seconds> expiries;
  FetchCompletion pending;
  int activations = 0;
};

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
  RecordingRemoteConfig remoteConfig{{}, folder.filePath("remote.sqlite")};
  RemoteConfigManager remoteConfigManager{remoteConfig};
  QQmlEngine engine;
  NotificationCenter notifications;
  const AppServices services{remoteConfig, remoteConfigManager, calcManager, preferences, notifications};
  std::unique_ptr<AppDelegate> delegate;
};

}  // namespace tavi
