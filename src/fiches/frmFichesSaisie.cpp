#include "fiches/frmFichesSaisie.h"

#include "fiches/frmFiches.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesSaisie::frmFichesSaisie(frmFiches& hote, const DescriptionSaisie& description)
    : PageOnglet(hote),
      hote_(hote),
      titre_(new LigneTexte(QLatin1String(description.titre), limiteTitreFiche, this)),
      texte_(new ZoneTexte(QLatin1String(description.texte), limiteTexteFiche, this)) {
  titre_->setToolTip(QString::fromUtf16(description.infobulleTitre));
  texte_->setToolTip(QString::fromUtf16(description.infobulleTexte));
  Etage(QString::fromUtf16(description.legendeTitre), titre_);
  contenu().setRowStretch(Etage(QString::fromUtf16(description.legendeTexte), texte_), 1);
}

void frmFichesSaisie::Reprend() {
  titre_->PoseTexte(Rogne(hote_.liste().combo->Texte()));
  texte_->PoseTexte(hote_.liste().texte->Texte());
}

void frmFichesSaisie::Vide() {
  titre_->PoseTexte({});
  texte_->PoseTexte({});
}

std::string frmFichesSaisie::TitreRogne() {
  titre_->RogneTexte();
  return titre_->Texte();
}

std::string frmFichesSaisie::TexteRogne() {
  texte_->RogneTexte();
  return texte_->Texte();
}

}  // namespace gastrelle
