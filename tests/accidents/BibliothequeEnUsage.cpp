#include "accidents/BibliothequeEnUsage.h"

#include <gtest/gtest.h>

#include "data/Texte1252.h"

namespace gastrelle::essai {
namespace {

/// Writes a record anew in the bytes of a file.
template <class T>
void Pose(std::string& octets, std::int32_t numero, const T& enregistrement) {
  octets.replace(static_cast<std::size_t>(numero - 1) * longueurEnregistrement<T>,
                 longueurEnregistrement<T>, Octets(enregistrement));
}

}  // namespace

BibliothequeEnUsage::BibliothequeEnUsage() {
  AjouteRecette(AjouteFamille("Sauces"), "Aïoli"_1252, "De l'ail.", "/aioli.png");
  Demarre();
  const std::int32_t desserts = AjouteFamille("Desserts");
  const std::int32_t delaissee = AjouteFamille("Gelées"_1252);
  const std::int32_t tartes = AjouteFamille("Tartes");
  const std::int32_t vide = AjouteFamille("Confits");
  AjouteRecette(desserts, "Île flottante"_1252, "Des blancs,\r\ndu lait.", "/ile.png");
  const std::int32_t oubliee = AjouteRecette(delaissee, "Oubliée"_1252, "Rien.", "/rien.png");
  const std::int32_t refaite = AjouteRecette(tartes, "Tatin", "Des pommes.");
  AjouteRecette(tartes, "Sans texte", {}, "/tarte.png");
  Efface<RecFamille>("GLR1.DAT", delaissee);
  Efface<RecRecette>("GLR2.DAT", oubliee);
  RemplaceTexte(refaite, "Des pommes, du beurre, du sucre, un four.");
  std::filesystem::create_directory(dossier.chemin() / "SAUVE");
  for (const char* nom : {"GLR1.DAT", "GLR2.DAT", "GLR3.DAT", "GLR4.DAT"}) {
    dossier.Ecrit(std::string("SAUVE/") + nom, dossier.Lit(nom));
  }
  AjouteRecette(vide, "Confit", "Une oie.", "/confit.png");
  Redemarre();
  avant = Recettes();
}

RecettesLues BibliothequeEnUsage::Recettes() const {
  const auto lues = LitRecettes(QuatreDe(dossier.chemin(), "DAT"));
  EXPECT_TRUE(lues.has_value()) << "les fichiers .DAT ne sont pas entiers";
  return lues.value_or(RecettesLues{});
}

void BibliothequeEnUsage::AjouteEncore(std::string_view titre) {
  AjouteRecette(2, titre, "Un texte de plus.");
  Redemarre();
  avant = Recettes();
}

template <class T>
void BibliothequeEnUsage::Efface(const char* nom, std::int32_t numero) {
  std::string octets = dossier.Lit(nom);
  T efface = Enregistrement<T>(dossier, nom, static_cast<std::size_t>(numero));
  T entete = Enregistrement<T>(dossier, nom, 1);
  efface.actif = supprime;
  --entete.actif;
  Pose(octets, numero, efface);
  Pose(octets, 1, entete);
  dossier.Ecrit(nom, octets);
}

void BibliothequeEnUsage::RemplaceTexte(std::int32_t recette, std::string_view texte) {
  const std::string textes = dossier.Lit("GLR3.DAT");
  std::string octets = dossier.Lit("GLR2.DAT");
  auto refaite = Enregistrement<RecRecette>(dossier, "GLR2.DAT", static_cast<std::size_t>(recette));
  refaite.posTexte = static_cast<std::int32_t>(textes.size()) + 1;
  refaite.lgTexte = static_cast<std::int32_t>(texte.size());
  Pose(octets, recette, refaite);
  dossier.Ecrit("GLR3.DAT", textes + std::string(texte));
  dossier.Ecrit("GLR2.DAT", octets);
}

}  // namespace gastrelle::essai
