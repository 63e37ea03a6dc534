#include "fromages/frmFromagesAffichage.h"

#include "controles/FeuilleTexte.h"

namespace gastrelle {

frmFromagesAffichage::frmFromagesAffichage(const PlaceOnglet& place, const QString& suffixe)
    : frmFromagesPage(place),
      txtRegion(new LigneTexte(QStringLiteral("txtRegion") + suffixe, sansLimite, this)),
      txtLait(new LigneTexte(QStringLiteral("txtLait") + suffixe, sansLimite, this)),
      txtPremierMois(new LigneTexte(QStringLiteral("txtPremierMois") + suffixe, sansLimite, this)),
      txtDernierMois(new LigneTexte(QStringLiteral("txtDernierMois") + suffixe, sansLimite, this)),
      txtNotes(new FeuilleTexte(QStringLiteral("txtNotes") + suffixe, sansLimite, this)) {
  for (LigneTexte* boite : {txtRegion, txtLait, txtPremierMois, txtDernierMois}) {
    boite->RendLectureSeule();
  }
  txtNotes->RendLectureSeule();
}

void frmFromagesAffichage::DisposeSous(QWidget* nom) {
  Dispose({nom, txtRegion, txtLait, txtPremierMois, txtDernierMois, txtNotes});
}

void frmFromagesAffichage::Montre(const VueFromage& fromage) {
  txtRegion->PoseTexte(fromage.region);
  txtLait->PoseTexte(fromage.lait);
  txtPremierMois->PoseTexte(fromage.premierMois);
  txtDernierMois->PoseTexte(fromage.dernierMois);
  txtNotes->PoseTexte(fromage.notes);
}

}  // namespace gastrelle
