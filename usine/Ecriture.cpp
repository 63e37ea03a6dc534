#include "usine/Ecriture.h"

#include "data/CatalogueFichiers.h"
#include "data/FichierEnregistrements.h"
#include "data/Reserve.h"

namespace gastrelle::usine {
namespace {

std::unique_ptr<Fichier> Neuf(AccesFichiers& disque, Donnees fichier) {
  const std::string nom = NomFabrique(fichier);
  if (disque.Existe(nom)) {
    disque.Supprime(nom);
  }
  return disque.Ouvre(nom);
}

/// A new pool: its signature alone.
struct ReserveNeuve {
  ReserveNeuve(AccesFichiers& disque, Donnees fichier) : place(Neuf(disque, fichier)) {
    place->Ecrit(0, Signature(fichier));
  }

  void Range(ReferenceTexte reference, const std::string& texte) {
    if (!texte.empty()) {
      reserve.Ajoute(reference, texte);
    }
  }

  std::unique_ptr<Fichier> place;
  Reserve reserve{place};
};

/// Writes a catalogue file: its header, then a record for each entry, filled by `remplit`.
template <class T, class Entrees, class Remplit>
void EcritCatalogue(AccesFichiers& disque, Donnees fichier, const Entrees& entrees,
                    Remplit&& remplit) {
  const std::unique_ptr<Fichier> place = Neuf(disque, fichier);
  FichierEnregistrements<T> enregistrements(place);
  T entete;
  entete.actif = Tenu<std::int16_t>(static_cast<std::int64_t>(entrees.size()));
  NomOuSignature(entete) = Signature(fichier);
  enregistrements.Ecrit(1, entete);
  for (const auto& entree : entrees) {
    T e;
    e.actif = vivant;
    remplit(e, entree);
    enregistrements.Ecrit(enregistrements.ProchainNumero(), e);
  }
}

void EcritRecettes(AccesFichiers& disque, const Catalogues& c) {
  EcritCatalogue<RecFamille>(disque, Donnees::GLR1, c.familles,
                             [](RecFamille& e, const std::string& nom) { e.nomFamille = nom; });
  ReserveNeuve textes(disque, Donnees::GLR3);
  ReserveNeuve images(disque, Donnees::GLR4);
  EcritCatalogue<RecRecette>(disque, Donnees::GLR2, c.recettes,
                             [&](RecRecette& e, const Recette& recette) {
                               e.idFamille = recette.idFamille;
                               e.nomRecette = recette.titre;
                               textes.Range({e.posTexte, e.lgTexte}, recette.texte);
                               images.Range({e.posImage, e.lgImage}, recette.image);
                             });
}

void EcritFromages(AccesFichiers& disque, const Catalogues& c) {
  ReserveNeuve textes(disque, Donnees::GLF2);
  EcritCatalogue<RecFromage>(disque, Donnees::GLF1, c.fromages,
                             [&](RecFromage& e, const Fromage& fromage) {
                               e.nomFromage = fromage.nom;
                               e.regionFromage = fromage.region;
                               e.lait = fromage.lait;
                               e.premierMois = fromage.premierMois;
                               e.dernierMois = fromage.dernierMois;
                               textes.Range({e.posTexte, e.lgTexte}, fromage.texte);
                             });
}

void EcritFiches(AccesFichiers& disque, Donnees fichier, Donnees pool,
                 const std::vector<Fiche>& fiches) {
  ReserveNeuve textes(disque, pool);
  EcritCatalogue<RecFiche>(disque, fichier, fiches, [&](RecFiche& e, const Fiche& fiche) {
    e.titre = fiche.titre;
    textes.Range({e.posTexte, e.lgTexte}, fiche.texte);
  });
}

void EcritVins(AccesFichiers& disque, const Catalogues& c) {
  EcritCatalogue<RecRegion>(disque, Donnees::GLV1, c.regions,
                            [](RecRegion& e, const std::string& nom) { e.nomRegion = nom; });
  ReserveNeuve textes(disque, Donnees::GLV3);
  EcritCatalogue<RecVin>(disque, Donnees::GLV2, c.vins, [&](RecVin& e, const Vin& vin) {
    e.nomVin = vin.nom;
    e.idRegion = vin.idRegion;
    textes.Range({e.posTexte, e.lgTexte}, vin.texte);
  });
}

void EcritMillesimes(AccesFichiers& disque, const Catalogues& c) {
  const std::unique_ptr<Fichier> place = Neuf(disque, Donnees::GLMV);
  FichierEnregistrements<RecMillesime> annees(place);
  for (const Annee& annee : c.millesimes) {
    RecMillesime e;
    std::size_t i = 0;
    std::apply([&](const auto&... champ) { ((e.*champ.membre = annee[i++]), ...); },
               champs<RecMillesime>);
    annees.Ecrit(annees.ProchainNumero(), e);
  }
}

void EcritFavoris(AccesFichiers& disque, const Catalogues& c) {
  EcritCatalogue<RecFamille>(disque, Donnees::GLFV1, c.categories,
                             [](RecFamille& e, const std::string& nom) { e.nomFamille = nom; });
  ReserveNeuve textes(disque, Donnees::GLFV3);
  EcritCatalogue<RecFavori>(disque, Donnees::GLFV2, c.favoris,
                            [&](RecFavori& e, const Favori& favori) {
                              e.nomFavori = favori.nom;
                              e.idCategorie = favori.idCategorie;
                              e.telephone = favori.telephone;
                              e.fax = favori.fax;
                              e.email = favori.email;
                              e.siteWeb = favori.siteWeb;
                              textes.Range({e.posAdresse, e.lgAdresse}, favori.adresse);
                              textes.Range({e.posTexte, e.lgTexte}, favori.notes);
                            });
}

/// The shopping list leaves the factory with all its aisles empty.
void EcritCourses(AccesFichiers& disque) {
  constexpr std::int64_t rayons = 15;
  const std::unique_ptr<Fichier> place = Neuf(disque, Donnees::GLMC);
  FichierEnregistrements<LigneRayon> lignes(place);
  for (std::int64_t i = 1; i <= rayons; ++i) {
    lignes.Ecrit(i, {});
  }
  const ReserveNeuve textes(disque, Donnees::GLMCN);
}

}  // namespace

void EcritFabrique(AccesFichiers& disque, const Catalogues& catalogues) {
  EcritRecettes(disque, catalogues);
  EcritFromages(disque, catalogues);
  EcritFiches(disque, Donnees::GLM1, Donnees::GLM2, catalogues.menus);
  EcritVins(disque, catalogues);
  EcritMillesimes(disque, catalogues);
  EcritFiches(disque, Donnees::GLT1, Donnees::GLT2, catalogues.trucs);
  EcritFavoris(disque, catalogues);
  EcritCourses(disque);
}

}  // namespace gastrelle::usine
