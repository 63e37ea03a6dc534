#include "favoris/CatalogueFavoris.h"

#include "data/ChangementCatalogue.h"
#include "data/Limites.h"
#include "data/ListeVivants.h"
#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"

namespace gastrelle {
namespace {

ReferenceTexte Adresse(RecFavori& favori) {
  return {favori.posAdresse, favori.lgAdresse};
}

ReferenceTexte Notes(RecFavori& favori) {
  return {favori.posTexte, favori.lgTexte};
}

/// A text of the pool, up to what its box takes.
std::string LitTexte(Module1& module, ReferenceTexte reference, std::int32_t limite) {
  return reference.position < 1
             ? std::string{}
             : module.textesFavoris.Lit(reference.position, reference.longueur, limite);
}

/// Trims a field in its record; answers its text.
template <std::size_t N>
std::string RogneChamp(TexteFixe<N>& champ) {
  std::string texte(Rogne(champ.brut()));
  champ = texte;
  return texte;
}

void PoseNom(RecFamille& categorie, std::string_view nom) {
  categorie.actif = vivant;
  categorie.nomFamille = nom;
}

/// The files that writing a favourite asks for; the program ends when one isn't there any more.
void ExigeOuFinit(Module1& module, const TextesFavori& textes) {
  ExigeFichierOuFinit(module, Donnees::GLFV2);
  if (!textes.adresse.empty() || !textes.notes.empty()) {
    ExigeFichierOuFinit(module, Donnees::GLFV3);
  }
}

/// How a text comes into the pool: `AjouteTexte` for a new favourite, or in the place of the old
/// one.
using Rangement = void (*)(Reserve&, ReferenceTexte, std::string_view);

void PoseSaisie(Module1& module, const FavoriSaisi& saisi, Rangement range) {
  RecFavori& favori = module.bufFavori.courant();
  favori.actif = vivant;
  favori.nomFavori = saisi.nom;
  favori.idCategorie = Tenu<std::int16_t>(saisi.categorie);
  range(module.textesFavoris, Adresse(favori), saisi.textes.adresse);
  favori.telephone = saisi.textes.telephone;
  favori.fax = saisi.textes.fax;
  favori.email = saisi.textes.email;
  favori.siteWeb = saisi.textes.siteWeb;
  range(module.textesFavoris, Notes(favori), saisi.textes.notes);
}

/// A quotient rounded to the nearest whole number, at the half to the even one.
constexpr std::int64_t QuotientArrondi(std::int64_t dividende, std::int64_t diviseur) {
  const std::int64_t quotient = dividende / diviseur;
  const std::int64_t doubleReste = 2 * (dividende % diviseur);
  const bool monte = doubleReste > diviseur || (doubleReste == diviseur && quotient % 2 != 0);
  return monte ? quotient + 1 : quotient;
}

/// The last record that the deletion of a category visits.
std::int64_t DernierVisite(Module1& module) {
  return QuotientArrondi(Ouvert(module.Place(Donnees::GLV2)).Longueur(),
                         longueurEnregistrement<RecFavori>);
}

}  // namespace

void ExigeFavoris(Module1& module) {
  ExigeFichier(module, Donnees::GLFV2);
}

Liste ListeCategories(Module1& module) {
  Liste categories;
  AjouteVivants(module.bufCategorie, module.bufCategorie.courant(), categories);
  return categories;
}

Liste ListeFavoris(Module1& module) {
  ExigeFavoris(module);
  return ListeReparee(module.bufFavori, module.bufFavori.courant());
}

Liste FavorisDeLaCategorie(Module1& module, std::int32_t categorie) {
  Liste favoris;
  RecFavori lu;
  AjouteVivants(module.bufFavori, lu, favoris,
                [categorie](const RecFavori& favori) { return favori.idCategorie == categorie; });
  return favoris;
}

FavoriLu LitFavori(Module1& module, std::int32_t numero) {
  for (const Donnees fichier : {Donnees::GLFV2, Donnees::GLFV1, Donnees::GLFV3}) {
    ExigeFichier(module, fichier);
  }
  module.bufFavori.LitCourant(numero);
  RecFavori& favori = module.bufFavori.courant();
  module.bufCategorie.LitCourant(favori.idCategorie);
  FavoriLu lu;
  lu.categorie = Rogne(module.bufCategorie.courant().nomFamille.brut());
  lu.textes.adresse = LitTexte(module, Adresse(favori), limiteAdressePostale);
  lu.textes.telephone = Rogne(favori.telephone.brut());
  lu.textes.fax = Rogne(favori.fax.brut());
  lu.textes.email = RogneChamp(favori.email);
  lu.textes.siteWeb = RogneChamp(favori.siteWeb);
  lu.textes.notes = LitTexte(module, Notes(favori), limiteTexte);
  return lu;
}

void AjouteCategorie(Module1& module, std::string_view nom) {
  ExigeFichier(module, Donnees::GLFV1);
  PoseNom(module.bufCategorie.courant(), nom);
  AjouteCourant(module.bufCategorie);
}

void RenommeCategorie(Module1& module, std::int32_t numero, std::string_view nom) {
  ExigeFichier(module, Donnees::GLFV1);
  PoseNom(module.bufCategorie.courant(), nom);
  module.bufCategorie.EcritCourant(numero);
}

void SupprimeCategorie(Module1& module, std::int32_t numero) {
  ExigeFichier(module, Donnees::GLFV1);
  ExigeFavoris(module);
  RecFavori& favori = module.bufFavori.courant();
  module.bufFavori.ParcourtEntre(2, DernierVisite(module), favori, [&](std::int32_t numeroFavori) {
    if (favori.actif == vivant && favori.idCategorie == numero) {
      favori.actif = supprime;
      module.bufFavori.EcritCourant(numeroFavori);
      module.bufFavori.Compte(-1);
    }
    return true;
  });
  SupprimeEnregistrement(module.bufCategorie, numero);
}

std::int32_t AjouteFavori(Module1& module, const FavoriSaisi& saisi) {
  ExigeOuFinit(module, saisi.textes);
  PoseSaisie(module, saisi, AjouteTexte);
  return AjouteCourant(module.bufFavori);
}

void ChangeFavori(Module1& module, std::int32_t numero, const FavoriSaisi& saisi) {
  ExigeOuFinit(module, saisi.textes);
  PoseSaisie(module, saisi, [](Reserve& reserve, ReferenceTexte reference, std::string_view texte) {
    reserve.Remplace(reference, texte);
  });
  module.bufFavori.EcritCourant(numero);
}

void SupprimeFavori(Module1& module, std::int32_t numero) {
  ExigeFavoris(module);
  SupprimeEnregistrement(module.bufFavori, numero);
}

}  // namespace gastrelle
