#include "GrandeBibliotheque.h"

#include <fstream>
#include <stdexcept>

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

void Ecrit(const std::filesystem::path& dossier, Donnees fichier, const std::string& octets) {
  std::ofstream sortie(dossier / Nom(fichier), std::ios::binary);
  sortie.write(octets.data(), static_cast<std::streamsize>(octets.size()));
  if (!sortie.flush()) {
    throw std::runtime_error("impossible d'écrire " + (dossier / Nom(fichier)).string());
  }
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
    const std::string texte = titres.Texte();
    RecRecette recette;
    recette.actif = vivant;
    recette.idFamille = famille;
    recette.nomRecette = titres.Titre();
    recette.posTexte = static_cast<std::int32_t>(textes.size()) + 1;
    recette.lgTexte = static_cast<std::int32_t>(texte.size());
    recettes += Octets(recette);
    textes += texte;
  }
  Ecrit(dossier, Donnees::GLR2, recettes);
  Ecrit(dossier, Donnees::GLR3, textes);
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
    const std::string note = titres.Texte();
    RecVin vin;
    vin.actif = vivant;
    vin.nomVin = titres.Titre();
    vin.idRegion = 2 + i % nombreRegions;
    for (const CouleurVin& couleur : couleursVin) {
      vin.*couleur.nombre = static_cast<std::int16_t>(1 + i % 100);
    }
    vin.posTexte = static_cast<std::int32_t>(textes.size()) + 1;
    vin.lgTexte = static_cast<std::int32_t>(note.size());
    vins += Octets(vin);
    textes += note;
  }
  Ecrit(dossier, Donnees::GLV1, regions);
  Ecrit(dossier, Donnees::GLV2, vins);
  Ecrit(dossier, Donnees::GLV3, textes);
}

}  // namespace gastrelle::bancs
