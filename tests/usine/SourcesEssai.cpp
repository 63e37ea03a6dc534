#include "usine/SourcesEssai.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <sys/wait.h>

#include <gtest/gtest.h>

namespace gastrelle::usine {
namespace {

std::string Cle(const char* cle, const std::string& valeur) {
  return std::string(cle) + " = \"" + valeur + "\"\n";
}

std::string EnRecette(const std::string& titre) {
  return "[[recette]]\n" + Cle("titre", titre) + Cle("saison", "été") + Cle("pour", "4 personnes") +
         Cle("preparation", "20 min") + Cle("cuisson", "1 h") +
         "ingredients = [\n\"1 oignon\",\n\"Sel\",\n]\n" +
         "etapes = [\n\"Éplucher.\",\n\"Cuire le tout : " + titre + ".\",\n\"Servir.\",\n]\n" +
         Cle("conseil", "Ce plat se prépare très bien la veille.") + "\n";
}

std::string EnVin(std::size_t numero) {
  return "[[vin]]\n" + Cle("nom", "Vin " + std::to_string(numero)) +
         Cle("texte", TexteLong(numero, 200)) + "\n";
}

std::string EnFiches(const std::string& cle, const std::string& titre, std::size_t nombre,
                     std::size_t longueur) {
  std::string texte;
  for (std::size_t i = 1; i <= nombre; ++i) {
    texte += "[[" + cle + "]]\n" + Cle("titre", titre + " " + std::to_string(i)) +
             Cle("texte", TexteLong(i, longueur)) + "\n";
  }
  return texte;
}

std::string EnFromages() {
  std::string texte;
  for (std::size_t i = 1; i <= 122; ++i) {
    texte += "[[fromage]]\n" + Cle("nom", "Fromage " + std::to_string(i)) +
             Cle("region", "Savoie") + Cle("lait", "vache") + Cle("de", "mai") +
             Cle("a", "octobre") + Cle("texte", TexteLong(i, 201)) + "\n";
  }
  return texte;
}

std::string EnFavoris() {
  std::string texte;
  for (std::size_t i = 1; i <= 3; ++i) {
    texte += "[[categorie]]\n" + Cle("nom", "Catégorie " + std::to_string(i)) + "\n";
  }
  for (std::size_t i = 1; i <= 14; ++i) {
    texte += "[[favori]]\n" + Cle("nom", "Favori " + std::to_string(i)) +
             Cle("categorie", "Catégorie 2") +
             "adresse = \"\"\"1, rue du Four\n21000 Dijon\"\"\"\n" +
             Cle("telephone", "01 02 03 04 05") + Cle("fax", "") + Cle("email", "a@exemple.fr") +
             Cle("siteWeb", "https://exemple.fr") +
             Cle("notes", "Note numéro " + std::to_string(i) + ".") + "\n";
  }
  return texte;
}

std::string EnAnnee(int an) {
  std::string texte = "[[annee]]\nan = " + std::to_string(an) + "\n";
  for (const char* terroir : {"bordeauxRouges", "bordeauxBlancs", "bourgognesRouges",
                              "bourgognesBlancs", "crusDesCotesDuRhone", "alsace",
                              "pouillySancerre", "anjouTouraineMuscadet", "crusDuBeaujolais"}) {
    texte += std::string(terroir) + " = " + std::to_string(an % 6) + "\n";
  }
  return texte + "\n";
}

void EcritRegions(const SourcesEssai& sources) {
  constexpr std::size_t regions = 27;
  constexpr std::size_t vins = 563;
  std::string liste;
  for (std::size_t i = 1; i <= regions; ++i) {
    const std::string fichier = "region-" + std::to_string(i);
    liste += "[[region]]\n" + Cle("nom", "Région " + std::to_string(i)) + Cle("fichier", fichier);
    std::string contenu;
    for (std::size_t vin = i; vin <= (i == regions ? vins : i); ++vin) {
      contenu += EnVin(vin);
    }
    sources.Ecrit("vins/" + fichier + ".toml", contenu);
  }
  sources.Ecrit("vins/regions.toml", liste);
}

}  // namespace

void PrintTo(const Refus& refus, std::ostream* sortie) {
  *sortie << refus.lieu.EnTexte() << ": " << refus.entree << ": " << refus.raison;
}

std::string TexteLong(std::size_t numero, std::size_t longueur) {
  std::string texte = "Texte " + std::to_string(numero) + " ";
  while (texte.size() < longueur) {
    texte += "mots ";
  }
  texte.resize(longueur - 1);
  std::replace(texte.end() - 2, texte.end(), ' ', 'x');
  return texte + ".";
}

SourcesEssai::SourcesEssai() {
  for (const char* nom : {"sources/recettes", "sources/vins", "images", "sortie"}) {
    std::filesystem::create_directories(dossier_.chemin() / nom);
  }
  dossier_.Ecrit("images/potages.png", "image");
  Ecrit("recettes/familles.toml", "[[famille]]\n" + Cle("nom", "Potages") +
                                      Cle("fichier", "potages") +
                                      Cle("illustration", "potages.png") + "\n[[famille]]\n" +
                                      Cle("nom", "Desserts") + Cle("fichier", "desserts"));
  Ecrit("recettes/potages.toml", EnRecette("Velouté") + EnRecette("Bisque"));
  Ecrit("recettes/desserts.toml", EnRecette("Flan"));
  EcritRegions(*this);
  Ecrit("fromages.toml", EnFromages());
  Ecrit("menus.toml", EnFiches("menu", "Menu", 15, 121));
  Ecrit("trucs.toml", EnFiches("truc", "Truc", 167, 120));
  Ecrit("favoris.toml", EnFavoris());
  Ecrit("millesimes.toml", EnAnnee(1928) + EnAnnee(1929) + EnAnnee(1930));
}

std::string SourcesEssai::Lit(const std::string& fichier) const {
  return dossier_.Lit("sources/" + fichier);
}

void SourcesEssai::Ecrit(const std::string& fichier, std::string_view contenu) const {
  dossier_.Ecrit("sources/" + fichier, contenu);
}

void SourcesEssai::Remplace(const std::string& fichier, std::string_view ancien,
                            std::string_view nouveau) {
  std::string contenu = Lit(fichier);
  const std::size_t place = contenu.find(ancien);
  ASSERT_NE(place, std::string::npos) << fichier << " ne contient pas " << ancien;
  Ecrit(fichier, contenu.replace(place, ancien.size(), nouveau));
}

void SourcesEssai::Ajoute(const std::string& fichier, std::string_view suite) {
  Ecrit(fichier, Lit(fichier) + std::string(suite));
}

void SourcesEssai::Supprime(const std::string& fichier) const {
  dossier_.Supprime("sources/" + fichier);
}

void SourcesEssai::AjouteImage(const std::string& image) const {
  dossier_.Ecrit("images/" + image, "image");
}

void SourcesEssai::SupprimeImage(const std::string& image) const {
  dossier_.Supprime("images/" + image);
}

Catalogues SourcesEssai::Compile() {
  return LitCatalogues(dossier_.chemin() / "sources", dossier_.chemin() / "images", journal);
}

SourcesEssai::Execution SourcesEssai::LanceFabrique() const {
  const std::string racine = dossier_.chemin().string();
  const std::string commande = std::string(PROGRAMME_FABRIQUE) + " " + racine + "/sources " +
                               racine + "/images " + racine + "/sortie 2>" + racine + "/erreurs";
  const int fin = std::system(commande.c_str());  // NOLINT(cert-env33-c): our own program
  Execution execution{WIFEXITED(fin) ? WEXITSTATUS(fin) : -1, {}, {}};
  std::istringstream erreurs(dossier_.Lit("erreurs"));
  for (std::string ligne; std::getline(erreurs, ligne);) {
    execution.erreurs.push_back(ligne);
  }
  for (const auto& place : std::filesystem::directory_iterator(sortie())) {
    execution.ecrits.push_back(place.path().filename().string());
  }
  std::sort(execution.ecrits.begin(), execution.ecrits.end());
  return execution;
}

}  // namespace gastrelle::usine
