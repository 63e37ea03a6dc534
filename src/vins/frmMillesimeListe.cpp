#include "vins/frmMillesimeListe.h"

#include <QHBoxLayout>

#include "controles/Focus.h"
#include "controles/ParcoursListe.h"
#include "data/ProceduresFichiers.h"
#include "vins/CatalogueMillesimes.h"

namespace gastrelle {
namespace {

constexpr int lettresCru = 34;  ///< greatest width of the list of areas, with its arrow

Liste ListeCrus() {
  Liste entrees;
  for (const Cru& cru : crus) {
    entrees.push_back({std::string(cru.nom), static_cast<std::int32_t>(entrees.size())});
  }
  return entrees;
}

}  // namespace

frmMillesimeListe::frmMillesimeListe(const PlaceOnglet& place)
    : PageOnglet(place),
      ComboCru(new ComboListe(QStringLiteral("ComboCru"), Ordre::insertion, this)),
      MSFlexGrid2(new GrilleMillesimes(QStringLiteral("MSFlexGrid2"), this)) {
  Dispose();
  boutons().Aide("cmdAideListe");
  ParcourtAuClavier(*this, *ComboCru);
  ComboCru->surChoix = [this] { AfficheCru(); };
  MSFlexGrid2->surSelection = [this] { anneeCourante = MSFlexGrid2->RangeeChoisie(); };
}

void frmMillesimeListe::Dispose() {
  MSFlexGrid2->setToolTip(QStringLiteral("Sélectionner une année pour modifier son classement"));
  ComboCru->setMaximumWidth(lettresCru * ComboCru->fontMetrics().averageCharWidth());
  constexpr int avantLaSuite = 1000;  // the list grows up to its greatest width first
  auto* choix = new QHBoxLayout;
  choix->addWidget(Legende(QStringLiteral("Le vigno&ble"), ComboCru));
  choix->addWidget(ComboCru, avantLaSuite);
  choix->addStretch(1);
  contenu().addLayout(choix, 0, 0);
  contenu().addWidget(Legende(QStringLiteral("Ses &millésimes"), MSFlexGrid2), 1, 0);
  contenu().addWidget(MSFlexGrid2, 2, 0, Qt::AlignLeft);
  contenu().setRowStretch(2, 1);
}

void frmMillesimeListe::Charge() {
  ComboCru->Ajoute(ListeCrus());
  ComboCru->Choisit(0);
  anneeCourante = 1;
}

void frmMillesimeListe::AfficheCru() {
  Opere(module(), [&] {
    const auto cru = static_cast<std::size_t>(ComboCru->NumeroChoisi());
    MSFlexGrid2->Remplit(ComboCru->currentText(), DegresDuCru(module(), cru));
    MSFlexGrid2->Selectionne(1);
  });
}

Vue frmMillesimeListe::VueCourante() const {
  VueMillesimes vue{.cru = ComboCru->Texte(), .annees = {}};
  std::int32_t numero = 0;
  for (const std::int16_t degre : MSFlexGrid2->degresPoses()) {
    vue.annees.push_back({Annee(++numero), degre});
  }
  return vue;
}

void frmMillesimeListe::Entre() {
  MSFlexGrid2->MontreSelection();
  DonneFocus(MSFlexGrid2);
}

}  // namespace gastrelle
