#include "vins/frmVinsTrier.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "vignobles/CarteVignobles.h"
#include "vins/CatalogueVins.h"
#include "vins/frmVinsListe.h"

namespace gastrelle {
namespace {

constexpr int indiceSansRegion = 0;  // the "?"

}  // namespace

frmVinsTrier::frmVinsTrier(const PlaceOnglet& place, frmVinsListe& liste)
    : PageOnglet(place),
      liste_(liste),
      ComboRegionVinTrier_(
          new ComboListe(QStringLiteral("ComboRegionVinTrier"), Ordre::alphabetique, this)),
      lstTriVin_(new ListeChoix(QStringLiteral("lstTriVin"), Ordre::alphabetique, this)),
      colonneVins_(new QWidget(this)),
      PictureCarte_(new CarteVignobles(QStringLiteral("PictureCarte"), this)),
      cmdActiver_(boutons().Affiche("cmdActiver", u"Afficher le vin sélectionné",
                                    [this] { Affiche(ongletListe); })),
      cmdMaCave_(boutons().Ajoute("cmdMaCave", u"&Ma cave", "vin",
                                  u"Afficher ma cave en vin sélectionné",
                                  [this] { Affiche(ongletCaveDuVin); })) {
  Dispose();
  liste_.regions.Suit(*ComboRegionVinTrier_, "?");
  ComboRegionVinTrier_->surChoix = [this] { ChoisitRegion(); };
  lstTriVin_->surDoubleClic = [this] { cmdActiver_->click(); };
  PictureCarte_->surRegion = [this](std::int32_t numero) {
    if (const auto indice = ComboRegionVinTrier_->modele().IndiceDe(numero)) {
      ComboRegionVinTrier_->Choisit(*indice);
    }
  };
}

void frmVinsTrier::Dispose() {
  QLabel* legendeRegions = Legende(QStringLiteral("Les &régions"), ComboRegionVinTrier_);
  legendeRegions->setObjectName(QStringLiteral("Label2(10)"));
  QLabel* legendeVins = Legende(QStringLiteral("Les &vins"), lstTriVin_);
  legendeVins->setObjectName(QStringLiteral("Label2(11)"));
  lstTriVin_->setToolTip(QStringLiteral("Double-clic pour afficher la sélection"));
  auto* choix = new QHBoxLayout;
  choix->addWidget(legendeRegions);
  choix->addWidget(ComboRegionVinTrier_, 1);
  auto* vins = new QVBoxLayout(colonneVins_);
  vins->setContentsMargins({});
  vins->addWidget(legendeVins);
  vins->addWidget(lstTriVin_, 1);
  // The map has the whole place, or what the list leaves at its right.
  auto* page = new QHBoxLayout;
  page->addWidget(colonneVins_, 1);
  page->addWidget(PictureCarte_, 1);
  contenu().addLayout(choix, 0, 0);
  contenu().addLayout(page, 1, 0);
  contenu().setRowStretch(1, 1);
  boutons().Aide("cmdAideTrier");
}

void frmVinsTrier::Entre() {
  ComboRegionVinTrier_->Choisit(indiceSansRegion);
}

void frmVinsTrier::MontreVins(bool montres) {
  for (QWidget* sien : std::initializer_list<QWidget*>{colonneVins_, cmdActiver_, cmdMaCave_}) {
    sien->setVisible(montres);
  }
}

void frmVinsTrier::ChoisitRegion() {
  MontreVins(false);
  lstTriVin_->Vide();
  if (ComboRegionVinTrier_->currentIndex() == indiceSansRegion) {
    PictureCarte_->MetEnValeur(0);
    return;
  }
  Opere(module(), [&] {
    const std::int32_t region = ComboRegionVinTrier_->NumeroChoisi();
    lstTriVin_->Ajoute(VinsDeLaRegion(module(), region));
    PictureCarte_->MetEnValeur(region);
  });
  MontreLesSiens();
}

void frmVinsTrier::MontreLesSiens() {
  const bool aucun = lstTriVin_->entrees().empty();
  if (aucun) {
    std::string seule;
    seule += "Aucun vin mémorisé"_1252;
    lstTriVin_->Ajoute(Liste{{seule, 0}});
  }
  cmdActiver_->setEnabled(!aucun);
  cmdMaCave_->setEnabled(!aucun);
  MontreVins(true);
  lstTriVin_->Choisit(0);
  DonneFocus(lstTriVin_);
}

void frmVinsTrier::Affiche(int onglet) {
  Opere(module(), [&] { liste_.ComboVins->ChoisitNumero(lstTriVin_->NumeroChoisi()); });
  hote().MontreOnglet(onglet);
}

Vue frmVinsTrier::VueCourante() const {
  VueVinsTries vue;
  if (ComboRegionVinTrier_->currentIndex() > indiceSansRegion) {
    vue.region = ComboRegionVinTrier_->Texte();
  }
  for (const EntreeListe& vin : lstTriVin_->entrees()) {
    vue.vins.push_back(vin.texte);
  }
  return vue;
}

}  // namespace gastrelle
