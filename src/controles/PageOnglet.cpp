#include "controles/PageOnglet.h"

#include "controles/BandeauLogo.h"
#include "controles/Touches.h"

namespace gastrelle {
namespace {

constexpr int marge = 12;

BandeauLogo* Bandeau(const PlaceOnglet& place, QWidget* parent) {
  const QString infobulle = QString::fromUtf16(place.description.infobulleLogo);
  auto* bandeau =
      new BandeauLogo(place.logo, QString::fromUtf16(place.description.entete), infobulle, parent);
  if (place.ligneDuLogo) {
    bandeau->AjouteLigne(infobulle);
  }
  bandeau->AjouteAnnonce(QStringLiteral("txtAnnonce(%1)").arg(place.numero - 1));
  return bandeau;
}

}  // namespace

PageOnglet::PageOnglet(const PlaceOnglet& place)
    : Onglet(&place.hote),
      hote_(place.hote),
      bandeau_(Bandeau(place, this)),
      options_(new QHBoxLayout),
      contenu_(new QGridLayout),
      boutons_(new PiedBoutons) {
  setObjectName(QStringLiteral("Frame1(%1)").arg(place.numero));
  setProperty(proprieteSujet, QLatin1String(place.description.sujetAide));
  options_->setSpacing(2 * marge);
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(marge, marge, marge, marge);
  page->addWidget(bandeau_);
  page->addLayout(options_);
  page->addLayout(contenu_, 1);
  page->addLayout(boutons_);
}

void PageOnglet::PoseAnnonce(std::string_view texte) {
  bandeau_->PoseAnnonce(texte);
}

std::array<QRadioButton*, 2> PageOnglet::Options(const char* nom, const char16_t* premiere,
                                                 const char16_t* seconde) {
  const auto option = [&](int indice, const char16_t* titre) {
    auto* bouton = new QRadioButton(QString::fromUtf16(titre), this);
    bouton->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(nom)).arg(indice));
    options_->addWidget(bouton);
    return bouton;
  };
  QRadioButton* const premier = option(0, premiere);
  QRadioButton* const second = option(1, seconde);
  options_->addStretch(1);
  return {premier, second};
}

int PageOnglet::AjouteACote(const QString& legende, QWidget* controle) {
  constexpr int jusquAuBord = -1;
  const int rang = contenu_->count() == 0 ? 0 : contenu_->rowCount();
  // Beside a box of several lines the caption stands at its head.
  const bool haut = controle->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
  contenu_->addWidget(Legende(legende, controle), rang, 0, haut ? Qt::AlignTop : Qt::Alignment());
  contenu_->addWidget(controle, rang, 1, 1, jusquAuBord);
  contenu_->setColumnStretch(1, 1);
  return rang;
}

int PageOnglet::AjouteDessous(const QString& legende, QWidget* controle) {
  const int rang = contenu_->count() == 0 ? 0 : contenu_->rowCount();
  contenu_->addWidget(Legende(legende, controle), rang, 0);
  contenu_->addWidget(controle, rang + 1, 0);
  return rang + 1;
}

}  // namespace gastrelle
