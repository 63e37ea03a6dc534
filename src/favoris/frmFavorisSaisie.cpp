#include "favoris/frmFavorisSaisie.h"

#include "data/Limites.h"
#include "favoris/frmFavorisListe.h"

namespace gastrelle {

frmFavorisSaisie::frmFavorisSaisie(const PlaceOnglet& place, frmFavorisListe& laListe,
                                   const DescriptionSaisieFavori& description)
    : frmFavorisFiche(place, QLatin1String(description.suffixe)),
      liste(laListe),
      options(Options(description.options, u"Une caté&gorie", description.optionFavori)),
      nomCategorie(new LigneTexte(
          QStringLiteral("txtCategorie") + QLatin1String(description.suffixe), limiteNom, this)),
      categories(new ComboListe(QLatin1String(description.categories), Ordre::alphabetique, this)),
      nom(new LigneTexte(QStringLiteral("txtNomFavori") + QLatin1String(description.suffixe),
                         limiteNom, this)) {
  liste.categories.Suit(*categories);
  nomCategorie->setToolTip(QString::fromUtf16(description.infobulleCategorie));
  for (std::size_t i = 0; i < options.size(); ++i) {
    options[i]->setToolTip(QString::fromUtf16(description.infobullesOptions[i]));
  }
  const std::vector<QWidget*> champs = PourFavori();
  for (std::size_t i = 0; i < champs.size(); ++i) {
    champs[i]->setToolTip(QString::fromUtf16(description.infobulles.at(i)));
  }
}

std::vector<QWidget*> frmFavorisSaisie::PourFavori() const {
  std::vector<QWidget*> controles = Textuelles();
  controles.insert(controles.begin(), categories);
  return controles;
}

std::vector<QWidget*> frmFavorisSaisie::Textuelles() const {
  std::vector<QWidget*> boites = Boites();
  boites.insert(boites.begin(), nom);
  return boites;
}

bool frmFavorisSaisie::AccepteNomCategorie(std::string_view siVide, const ComboListe& existantes,
                                           int sauf) {
  RogneTexte(*nomCategorie);
  if (EstVide(*nomCategorie)) {
    hote().Refuse(siVide, nomCategorie);
    return false;
  }
  if (existantes.ContientTexte(nomCategorie->Texte(), sauf)) {
    hote().RefuseAvecBip("Cette catégorie de favoris existe déjà !"_1252, nomCategorie);
    return false;
  }
  return true;
}

FavoriSaisi frmFavorisSaisie::Saisie(std::int32_t categorie) {
  RogneTextes();
  return {nom->Texte(), categorie, Textes()};
}

}  // namespace gastrelle
