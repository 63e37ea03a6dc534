#include "shell/EcouteArret.h"

#include <QSocketNotifier>

namespace gastrelle {
namespace {

void Appelle(const std::function<void()>& suite) {
  if (suite) {
    suite();
  }
}

}  // namespace

EcouteArret::EcouteArret(Application& application, int descripteur) : application_(application) {
  application.surArret = [this] { Appelle(surArret); };
  connect(&application, &QGuiApplication::commitDataRequest, this,
          [this] { Appelle(surEnregistrement); });
  if (descripteur >= 0) {
    auto* guet = new QSocketNotifier(descripteur, QSocketNotifier::Read, this);
    connect(guet, &QSocketNotifier::activated, this, [this, guet] {
      guet->setEnabled(false);  // it stays readable
      Appelle(surArret);
    });
  }
}

EcouteArret::~EcouteArret() {
  application_.surArret = nullptr;
}

}  // namespace gastrelle
