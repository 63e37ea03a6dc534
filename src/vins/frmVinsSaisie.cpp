#include "vins/frmVinsSaisie.h"

#include "controles/FeuilleTexte.h"
#include "data/Limites.h"
#include "vins/frmVinsListe.h"

namespace gastrelle {

frmVinsSaisie::frmVinsSaisie(const PlaceOnglet& place, frmVinsListe& laListe,
                             const DescriptionSaisieVin& noms)
    : PageOnglet(place),
      liste(laListe),
      options(Options(noms.options, u"Une région d'&origine", noms.optionVin)),
      nomRegion(new LigneTexte(QLatin1String(noms.nomRegion), limiteNomVin, this)),
      nom(new LigneTexte(QLatin1String(noms.nom), limiteNomVin, this)),
      regions(new ComboListe(QLatin1String(noms.regions), Ordre::alphabetique, this)),
      notes(new FeuilleTexte(QLatin1String(noms.notes), limiteTexte, this)),
      legendeRegion_(QString::fromUtf16(noms.legendeRegion)) {
  liste.regions.Suit(*regions);
}

void frmVinsSaisie::Dispose() {
  AjouteACote(legendeRegion_, nomRegion);
  AjouteACote(QStringLiteral("Le nom &du vin"), nom);
  AjouteACote(QStringLiteral("Sa &région d'origine"), regions);
  contenu().setRowStretch(AjouteACote(QStringLiteral("No&tes"), notes), 1);
}

VinSaisi frmVinsSaisie::Saisie() {
  RogneTexte(*notes);
  return {nom->Texte(), regions->NumeroChoisi(), notes->Texte()};
}

}  // namespace gastrelle
