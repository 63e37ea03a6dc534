#include "vins/frmVinsTouteCave.h"

#include <memory>

#include <QFont>

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "vins/CatalogueVins.h"
#include "vins/RapportCave.h"
#include "vins/frmVinsListe.h"

namespace gastrelle {

frmVinsTouteCave::frmVinsTouteCave(const PlaceOnglet& place, frmVinsListe& liste)
    : PageOnglet(place),
      liste_(liste),
      List1_(new ListeLignes(QStringLiteral("List1"), this)),
      List2_(new ListeChoix(QStringLiteral("List2"), Ordre::alphabetique, this)) {
  List2_->hide();
  QFont chasseFixe = List1_->font();
  chasseFixe.setFamily(QStringLiteral("Courier New"));
  chasseFixe.setStyleHint(QFont::Monospace);
  chasseFixe.setFixedPitch(true);
  List1_->setFont(chasseFixe);
  List1_->setAccessibleName(QStringLiteral("Toute ma cave"));
  contenu().addWidget(List1_, 0, 0);
  boutons().Aide("cmdAideTouteMaCave");
}

void frmVinsTouteCave::Entre() {
  Opere(module(), [this] {
    List1_->Remplace({});
    List2_->Vide();
    List2_->Ajoute(VinsEnCave(module()));
    const auto rapport = std::make_shared<const RapportCave>(module(), List2_->entrees());
    List1_->Remplace({rapport->nombre(), [rapport](int ligne) { return rapport->Ligne(ligne); }});
    RelitVin(module(), liste_.ComboVins->NumeroChoisi());
    List1_->Choisit(0);
  });
  DonneFocus(List1_);
}

Vue frmVinsTouteCave::VueCourante() const {
  VueCave vue;
  const Lignes& lignes = List1_->lignes();
  for (int i = 0; i < lignes.nombre; ++i) {
    vue.lignes.push_back(lignes.ligne(i));
  }
  return vue;
}

}  // namespace gastrelle
