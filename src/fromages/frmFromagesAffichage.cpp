#include "fromages/frmFromagesAffichage.h"

namespace gastrelle {

frmFromagesAffichage::frmFromagesAffichage(const PlaceOnglet& place, const QString& suffixe,
                                           QWidget* nom)
    : frmFromagesPage(place),
      txtRegion(new LigneTexte(QStringLiteral("txtRegion") + suffixe, sansLimite, this)),
      txtLait(new LigneTexte(QStringLiteral("txtLait") + suffixe, sansLimite, this)),
      txtPremierMois(new LigneTexte(QStringLiteral("txtPremierMois") + suffixe, sansLimite, this)),
      txtDernierMois(new LigneTexte(QStringLiteral("txtDernierMois") + suffixe, sansLimite, this)),
      txtNotes(new ZoneTexte(QStringLiteral("txtNotes") + suffixe, sansLimite, this)) {
  for (LigneTexte* boite : {txtRegion, txtLait, txtPremierMois, txtDernierMois}) {
    boite->RendLectureSeule();
  }
  txtNotes->RendLectureSeule();
  Dispose({nom, txtRegion, txtLait, txtPremierMois, txtDernierMois, txtNotes});
}

void frmFromagesAffichage::Montre(const FromageLu& fromage) {
  txtRegion->PoseTexte(fromage.region);
  txtLait->PoseTexte(fromage.lait);
  txtPremierMois->PoseTexte(fromage.premierMois);
  txtDernierMois->PoseTexte(fromage.dernierMois);
  txtNotes->PoseTexte(fromage.notes);
}

void frmFromagesAffichage::Reprend(const frmFromagesAffichage& page) {
  txtRegion->PoseTexte(page.txtRegion->Texte());
  txtLait->PoseTexte(page.txtLait->Texte());
  txtPremierMois->PoseTexte(page.txtPremierMois->Texte());
  txtDernierMois->PoseTexte(page.txtDernierMois->Texte());
  txtNotes->PoseTexte(page.txtNotes->Texte());
}

}  // namespace gastrelle
