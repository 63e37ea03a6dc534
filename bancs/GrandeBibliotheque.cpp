#include "GrandeBibliotheque.h"

#include <fstream>
#include <stdexcept>

#include "Titres.h"
#include "data/CatalogueFichiers.h"
#include "data/Enregistrements.h"
#include "data/Texte1252.h"

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

}  // namespace gastrelle::bancs
