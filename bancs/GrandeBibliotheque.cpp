#include "GrandeBibliotheque.h"

#include <algorithm>
#include <fstream>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "Titres.h"
#include "data/CatalogueFichiers.h"
#include "data/Enregistrements.h"
#include "data/Texte1252.h"
#include "vins/Cave.h"

namespace gastrelle::bancs {
namespace {

template <class T>
std::string Octets(const T& enregistrement) {
  const auto octets = Code(enregistrement);
  return {octets.data(), octets.size()};
}

template <class T>
std::string Entete(Donnees fichier, int compte) {
  T entete;
  entete.actif = static_cast<std::int16_t>(compte);
  NomOuSignature(entete) = Signature(fichier);
  return Octets(entete);
}

/// Puts a text at the end of a pool; returns where it lies.
LigneRayon Range(std::string& textes, const std::string& texte) {
  const auto position = static_cast<std::int32_t>(textes.size()) + 1;
  textes += texte;
  return {position, static_cast<std::int32_t>(texte.size())};
}

/// A file as it is written, piece by piece.
class FichierEcrit {
 public:
  FichierEcrit(const std::filesystem::path& dossier, Donnees fichier)
      : nom_(dossier / Nom(fichier)), sortie_(nom_, std::ios::binary) {}

  void Ajoute(std::string_view octets) {
    sortie_.write(octets.data(), static_cast<std::streamsize>(octets.size()));
  }
  /// Throws if any of it couldn't be written.
  void Finit() {
    if (!sortie_.flush()) {
      throw std::runtime_error("impossible d'écrire " + nom_.string());
    }
  }

 private:
  std::filesystem::path nom_;
  std::ofstream sortie_;
};

void Ecrit(const std::filesystem::path& dossier, Donnees fichier, const std::string& octets) {
  FichierEcrit sortie(dossier, fichier);
  sortie.Ajoute(octets);
  sortie.Finit();
}

/// A pool of `nombreRecettes` texts, all of the same length.
void EcritTextes(const std::filesystem::path& dossier, Titres& titres, std::size_t parTexte) {
  FichierEcrit sortie(dossier, Donnees::GLR3);
  sortie.Ajoute(Signature(Donnees::GLR3));
  std::string texte;
  for (int i = 0; i < nombreRecettes; ++i) {
    texte.clear();
    while (texte.size() < parTexte) {
      texte += titres.Texte();
    }
    sortie.Ajoute(std::string_view(texte).substr(0, parTexte));
  }
  sortie.Finit();
}

/// Which text of the pool each recipe has.
std::vector<std::int32_t> RangsDesTextes(bool epars) {
  constexpr std::uint32_t graine = 1066;
  std::vector<std::int32_t> rangs(nombreRecettes);
  std::iota(rangs.begin(), rangs.end(), 0);
  if (epars) {
    std::shuffle(rangs.begin(), rangs.end(), std::mt19937(graine));
  }
  return rangs;
}

}  // namespace

void EcritGrandeBibliotheque(const std::filesystem::path& dossier, int nombre) {
  constexpr std::uint32_t graine = 2005;
  constexpr std::int32_t famille = 2;
  Titres titres(graine);

  RecFamille laSeule;
  laSeule.actif = vivant;
  laSeule.nomFamille = "Toutes mes recettes";
  Ecrit(dossier, Donnees::GLR1, Entete<RecFamille>(Donnees::GLR1, 1) + Octets(laSeule));

  std::string recettes = Entete<RecRecette>(Donnees::GLR2, nombre);
  std::string textes(Signature(Donnees::GLR3));
  for (int i = 0; i < nombre; ++i) {
    const LigneRayon texte = Range(textes, titres.Texte());
    RecRecette recette;
    recette.actif = vivant;
    recette.idFamille = famille;
    recette.nomRecette = titres.Titre();
    recette.posTexte = texte.posTexte;
    recette.lgTexte = texte.lgTexte;
    recettes += Octets(recette);
  }
  Ecrit(dossier, Donnees::GLR2, recettes);
  Ecrit(dossier, Donnees::GLR3, textes);
  Ecrit(dossier, Donnees::GLR4, std::string(Signature(Donnees::GLR4)));
}

void EcritGrandCahier(const std::filesystem::path& dossier, const GrandCahier& cahier) {
  constexpr std::uint32_t graine = 1977;
  constexpr std::int32_t premiere = 2;
  constexpr int parFamille = nombreRecettes / nombreFamilles + 1;
  constexpr int cent = 100;
  Titres titres(graine);

  std::string familles = Entete<RecFamille>(Donnees::GLR1, nombreFamilles);
  for (int i = 0; i < nombreFamilles; ++i) {
    RecFamille famille;
    famille.actif = vivant;
    famille.nomFamille = titres.Titre();
    familles += Octets(famille);
  }
  Ecrit(dossier, Donnees::GLR1, familles);
  EcritTextes(dossier, titres, cahier.parTexte);

  const std::vector<std::int32_t> rangs = RangsDesTextes(cahier.eparses);
  std::string recettes;
  int vivantes = 0;
  for (int i = 0; i < nombreRecettes; ++i) {
    RecRecette recette;
    recette.actif = i % cent < cahier.mortesParCent ? std::int16_t{0} : vivant;
    vivantes += recette.actif == vivant ? 1 : 0;
    recette.idFamille = premiere + (cahier.melees ? i % nombreFamilles : i / parFamille);
    recette.nomRecette = titres.Titre();
    recette.lgTexte = static_cast<std::int32_t>(cahier.parTexte);
    recette.posTexte = static_cast<std::int32_t>(Signature(Donnees::GLR3).size()) + 1 +
                       rangs[static_cast<std::size_t>(i)] * recette.lgTexte;
    recettes += Octets(recette);
  }
  Ecrit(dossier, Donnees::GLR2, Entete<RecRecette>(Donnees::GLR2, vivantes) + recettes);
  Ecrit(dossier, Donnees::GLR4, std::string(Signature(Donnees::GLR4)));
}

void EcritGrandeCave(const std::filesystem::path& dossier) {
  constexpr std::uint32_t graine = 1855;
  constexpr int nombreRegions = 27;
  Titres titres(graine);

  std::string regions = Entete<RecRegion>(Donnees::GLV1, nombreRegions);
  for (int i = 0; i < nombreRegions; ++i) {
    RecRegion region;
    region.actif = vivant;
    region.nomRegion = titres.Titre();
    regions += Octets(region);
  }
  std::string vins = Entete<RecVin>(Donnees::GLV2, nombreVins);
  std::string textes(Signature(Donnees::GLV3));
  for (int i = 0; i < nombreVins; ++i) {
    const LigneRayon notes = Range(textes, titres.Texte());
    RecVin vin;
    vin.actif = vivant;
    vin.nomVin = titres.Titre();
    vin.idRegion = 2 + i % nombreRegions;
    for (const CouleurVin& couleur : couleursVin) {
      vin.*couleur.nombre = static_cast<std::int16_t>(1 + i % 100);
    }
    vin.posTexte = notes.posTexte;
    vin.lgTexte = notes.lgTexte;
    vins += Octets(vin);
  }
  Ecrit(dossier, Donnees::GLV1, regions);
  Ecrit(dossier, Donnees::GLV2, vins);
  Ecrit(dossier, Donnees::GLV3, textes);
}

void EcritGrandCarnet(const std::filesystem::path& dossier) {
  constexpr std::uint32_t graine = 1900;
  constexpr int nombreCategories = 3;
  Titres titres(graine);

  std::string categories = Entete<RecFamille>(Donnees::GLFV1, nombreCategories);
  for (int i = 0; i < nombreCategories; ++i) {
    RecFamille categorie;
    categorie.actif = vivant;
    categorie.nomFamille = titres.Titre();
    categories += Octets(categorie);
  }
  std::string favoris = Entete<RecFavori>(Donnees::GLFV2, nombreFavoris);
  std::string textes(Signature(Donnees::GLFV3));
  for (int i = 0; i < nombreFavoris; ++i) {
    RecFavori favori;
    favori.actif = vivant;
    favori.nomFavori = titres.Titre();
    favori.idCategorie = static_cast<std::int16_t>(2 + i % nombreCategories);
    favori.telephone = "01 23 45 67 89";
    favori.email = "contact@exemple.fr";
    favori.siteWeb = "https://exemple.fr";
    const LigneRayon adresse = Range(textes, titres.Titre());
    const LigneRayon notes = Range(textes, titres.Texte());
    favori.posAdresse = adresse.posTexte;
    favori.lgAdresse = adresse.lgTexte;
    favori.posTexte = notes.posTexte;
    favori.lgTexte = notes.lgTexte;
    favoris += Octets(favori);
  }
  Ecrit(dossier, Donnees::GLFV1, categories);
  Ecrit(dossier, Donnees::GLFV2, favoris);
  Ecrit(dossier, Donnees::GLFV3, textes);
}

}  // namespace gastrelle::bancs
