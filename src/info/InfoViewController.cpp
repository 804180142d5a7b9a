#include "info/InfoViewController.h"

#include <memory>
#include <utility>

#include "kit/LocalizedText.h"
#include "lists/WhitelistViewController.h"

namespace wayloom {

InfoViewController::InfoViewController(Services services, QObject* parent)
    : ModalViewController(parent), mServices(std::move(services)) {}

QString InfoViewController::title() const {
  const QString& version = mServices.version;
  return localizedText("Wayloom") + u' ' + (version.isEmpty() ? QStringLiteral("(null)") : version);
}

void InfoViewController::wihteList() {
  mServices.modals.present(
      std::make_unique<WhitelistViewController>(mServices.files, mServices.homeScreen),
      ModalPresenter::Transition::Slide);
}

void InfoViewController::contactTheAuthor() {
  mServices.addresses.open(mServices.maker.contact);
}

void InfoViewController::visitQuorvil() {
  mServices.addresses.open(isChinese() ? mServices.maker.shop : mServices.maker.site);
}

}  // namespace wayloom
