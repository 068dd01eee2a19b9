#include "platform/links.h"

#include <QDesktopServices>

namespace tavi {
namespace {

bool isOpenableBySystem(const QUrl& address) {
  const QString scheme = address.scheme();
  if (!address.isValid()) return false;
  if (scheme == u"https" || scheme == u"http") return !address.host().isEmpty();
  return scheme == u"mailto";
}

}  // namespace

Links& Links::shared() {
  static Links links;
  return links;
}

bool Links::canOpen(const QUrl& address) const {
  return canOpen_(address);
}

void Links::open(const QUrl& address, const Completion& completion) const {
  const bool isOpened = canOpen(address) && open_(address);
  if (completion) completion(isOpened);
}

void Links::setHandler(Opener canOpen, Opener open) {
  canOpen_ = canOpen ? std::move(canOpen) : isOpenableBySystem;
  open_ = open ? std::move(open) : QDesktopServices::openUrl;
}

Links::Links() {
  setHandler({}, {});
}

}  // namespace tavi
