#include "vins/frmVinsTrier.h"

#include <QHBoxLayout>

#include "data/ProceduresFichiers.h"
#include "vignobles/CarteVignobles.h"
#include "vins/CatalogueVins.h"
#include "vins/frmVinsListe.h"

namespace gastrelle {
namespace {

constexpr DescriptionTri description{
    .groupes = {.nom = "ComboRegionVinTrier",
                .legende = u"Les &régions",
                .nomLegende = "Label2(10)"},
    .entrees = {.nom = "lstTriVin",
                .legende = u"Les &vins",
                .nomLegende = "Label2(11)",
                .infobulle = u"Double-clic pour afficher la sélection"},
    .infobulleAffiche = u"Afficher le vin sélectionné",
    .aucune = "Aucun vin mémorisé"_1252};

}  // namespace

frmVinsTrier::frmVinsTrier(const PlaceOnglet& place, frmVinsListe& liste)
    : PageTri(place, liste.regions, description),
      liste_(liste),
      PictureCarte_(new CarteVignobles(QStringLiteral("PictureCarte"), this)),
      cmdMaCave_(boutons().Ajoute("cmdMaCave", u"&Ma cave", "vin",
                                  u"Afficher ma cave en vin sélectionné",
                                  [this] { AfficheSur(ongletCaveDuVin); })) {
  Dispose();
  PictureCarte_->surRegion = [this](std::int32_t numero) {
    if (const auto indice = groupes->modele().IndiceDe(numero)) {
      groupes->Choisit(*indice);
    }
  };
}

void frmVinsTrier::Dispose() {
  // The map has the whole place, or what the list leaves at its right.
  auto* page = new QHBoxLayout;
  page->addWidget(colonneEntrees, 1);
  page->addWidget(PictureCarte_, 1);
  contenu().addLayout(page, 1, 0);
  boutons().Aide("cmdAideTrier");
}

Liste frmVinsTrier::EntreesDe(std::int32_t region) {
  return VinsDeLaRegion(module(), region);
}

void frmVinsTrier::MontreEntrees(bool montrees, bool utilisables) {
  PageTri::MontreEntrees(montrees, utilisables);
  cmdMaCave_->setVisible(montrees);
  cmdMaCave_->setEnabled(utilisables);
  PictureCarte_->MetEnValeur(montrees ? groupes->NumeroChoisi() : 0);
}

void frmVinsTrier::Affiche() {
  AfficheSur(ongletListe);
}

void frmVinsTrier::AfficheSur(int onglet) {
  Opere(module(), [&] { liste_.ComboVins->ChoisitNumero(entrees->NumeroChoisi()); });
  hote().MontreOnglet(onglet);
}

Vue frmVinsTrier::VueCourante() const {
  return VueVinsTries{GroupeChoisi(), Noms()};
}

}  // namespace gastrelle
