#include "fiches/frmFichesSaisie.h"

#include "controles/FeuilleTexte.h"
#include "data/Limites.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesSaisie::frmFichesSaisie(const PlaceOnglet& place, frmFichesListe& laListe,
                                 DescriptionSaisie DescriptionFiches::*controles)
    : PageOnglet(place),
      liste(laListe),
      description(laListe.description),
      titre(new LigneTexte(QLatin1String((description.*controles).titre), limiteNom, this)),
      texte(new FeuilleTexte(QLatin1String((description.*controles).texte), limiteTexte, this)) {
  const DescriptionSaisie& siens = description.*controles;
  titre->setToolTip(QString::fromUtf16(siens.infobulleTitre));
  texte->setToolTip(QString::fromUtf16(siens.infobulleTexte));
  AjouteDessous(QString::fromUtf16(siens.legendeTitre), titre);
  contenu().setRowStretch(AjouteDessous(QString::fromUtf16(siens.legendeTexte), texte), 1);
}

void frmFichesSaisie::Reprend() {
  const std::int32_t numero = liste.combo->currentData().toInt();
  ReprendTexte(*titre, liste.combo->Texte(), numero);
  ReprendTexte(*texte, liste.texte->Texte(), numero);
}

}  // namespace gastrelle
