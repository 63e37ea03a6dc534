#include "fiches/frmFichesSaisie.h"

#include "data/Limites.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesSaisie::frmFichesSaisie(const PlaceOnglet& place, frmFichesListe& liste,
                                 DescriptionSaisie DescriptionFiches::*controles)
    : PageOnglet(place),
      liste_(liste),
      titre_(new LigneTexte(QLatin1String((description().*controles).titre), limiteNom, this)),
      texte_(new ZoneTexte(QLatin1String((description().*controles).texte), limiteTexte, this)) {
  const DescriptionSaisie& siens = description().*controles;
  titre_->setToolTip(QString::fromUtf16(siens.infobulleTitre));
  texte_->setToolTip(QString::fromUtf16(siens.infobulleTexte));
  Etage(QString::fromUtf16(siens.legendeTitre), titre_);
  contenu().setRowStretch(Etage(QString::fromUtf16(siens.legendeTexte), texte_), 1);
}

const DescriptionFiches& frmFichesSaisie::description() const {
  return liste_.description();
}

void frmFichesSaisie::Reprend() {
  titre_->PoseTexte(liste_.Titre());
  texte_->PoseTexte(liste_.texte->Texte());
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
