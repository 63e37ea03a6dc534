#include "controles/PageOnglet.h"

#include <QVBoxLayout>

#include "controles/GroupeOptions.h"
#include "controles/Legende.h"
#include "controles/Touches.h"

namespace gastrelle {
namespace {

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
    : Onglet(&place.hote), hote_(place.hote), corps_(*this, Bandeau(place, this)) {
  setObjectName(QStringLiteral("Frame1(%1)").arg(place.numero));
  setProperty(proprieteSujet, QLatin1String(place.description.sujetAide));
}

void PageOnglet::PoseAnnonce(std::string_view texte) {
  corps_.bandeau->PoseAnnonce(texte);
}

void PageOnglet::TientDans(const QSize& place) {
  corps_.bandeau->TientDans(place);
}

std::array<QRadioButton*, 2> PageOnglet::Options(const char* nom, const char16_t* premiere,
                                                 const char16_t* seconde) {
  constexpr int sousLeBandeau = 1;
  auto* groupe = new GroupeOptions(QLatin1String(nom),
                                   {QString::fromUtf16(premiere), QString::fromUtf16(seconde)},
                                   corps_.bandeau->entete(), this);
  static_cast<QVBoxLayout*>(layout())->insertWidget(sousLeBandeau, groupe);
  return groupe->options();
}

int PageOnglet::AjouteACote(const QString& legende, QWidget* controle) {
  constexpr int jusquAuBord = -1;
  const int rang = contenu().count() == 0 ? 0 : contenu().rowCount();
  // Beside a box of several lines the caption stands at its head.
  const bool haut = controle->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
  contenu().addWidget(Legende(legende, controle), rang, 0, haut ? Qt::AlignTop : Qt::Alignment());
  contenu().addWidget(controle, rang, 1, 1, jusquAuBord);
  contenu().setColumnStretch(1, 1);
  return rang;
}

int PageOnglet::AjouteDessous(const QString& legende, QWidget* controle) {
  const int rang = contenu().count() == 0 ? 0 : contenu().rowCount();
  contenu().addWidget(Legende(legende, controle), rang, 0);
  contenu().addWidget(controle, rang + 1, 0);
  return rang + 1;
}

}  // namespace gastrelle
