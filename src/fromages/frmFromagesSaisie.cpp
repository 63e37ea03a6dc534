#include "fromages/frmFromagesSaisie.h"

#include "controles/FeuilleTexte.h"
#include "data/FichierEnregistrements.h"
#include "data/Limites.h"

namespace gastrelle {
namespace {

ComboListe* Codes(const QString& nom, std::span<const std::string_view> noms, QWidget* parent) {
  auto* liste = new ComboListe(nom, Ordre::insertion, parent);
  liste->Ajoute(ListeCodes(noms));
  return liste;
}

/// The list stands in the order of the codes.
std::int16_t Code(const ComboListe& liste) {
  return Tenu<std::int16_t>(liste.currentIndex());
}

}  // namespace

frmFromagesSaisie::frmFromagesSaisie(const PlaceOnglet& place, const QString& suffixe)
    : frmFromagesPage(place),
      txtFromage(new LigneTexte(QStringLiteral("txtFromage") + suffixe, limiteNom, this)),
      txtRegion(new LigneTexte(QStringLiteral("txtRegion") + suffixe, limiteRegionFromage, this)),
      ComboLait(Codes(QStringLiteral("ComboLait") + suffixe, laitNoms, this)),
      ComboPremierMois(Codes(QStringLiteral("ComboPremierMois") + suffixe, moisNoms, this)),
      ComboDernierMois(Codes(QStringLiteral("ComboDernierMois") + suffixe, moisNoms, this)),
      txtNotes(new FeuilleTexte(QStringLiteral("txtNotes") + suffixe, limiteTexte, this)) {
  Dispose({txtFromage, txtRegion, ComboLait, ComboPremierMois, ComboDernierMois, txtNotes});
}

FromageSaisi frmFromagesSaisie::Saisie() {
  RogneTexte(*txtRegion);
  RogneTexte(*txtNotes);
  return {txtFromage->Texte(),     txtRegion->Texte(),      Code(*ComboLait),
          Code(*ComboPremierMois), Code(*ComboDernierMois), txtNotes->Texte()};
}

void frmFromagesSaisie::MontreCodes(std::int16_t lait, std::int16_t premierMois,
                                    std::int16_t dernierMois) {
  ComboLait->Montre(lait);
  ComboPremierMois->Montre(premierMois);
  ComboDernierMois->Montre(dernierMois);
}

}  // namespace gastrelle
