// How long the favourites' window takes to open on 32,766 favourites, against one plain read of
// their file and one plain sort of their names, in turns in the same run.

#include <filesystem>
#include <memory>

#include <QComboBox>

#include "GrandeBibliotheque.h"
#include "Lancement.h"
#include "Ouverture.h"
#include "Plancher.h"
#include "Releve.h"
#include "favoris/frmFavoris.h"

namespace gastrelle::bancs {
namespace {

constexpr double cible = 1.5;
constexpr int tours = 41;

struct Releves {
  Releve lectureEtTri;
  Releve ouverture;
};

void Tour(Releves& releves, const std::filesystem::path& fichier, Module1& module) {
  std::size_t attendus = 0;
  releves.lectureEtTri.Mesure([&] {
    attendus =
        LitEtTrie<RecFavori>(fichier, [](const RecFavori& /*favori*/) { return true; }).size();
  });
  essai::CadreEssai cadre(module);
  std::unique_ptr<frmFavoris> fenetre;
  releves.ouverture.Mesure([&] { fenetre = OuvreEtPeint<frmFavoris>(module, cadre); });
  const auto* favoris = fenetre->findChild<QComboBox*>(QStringLiteral("ComboFavoris"));
  Exige(attendus == nombreFavoris && favoris->count() == nombreFavoris,
        "tous les favoris ne sont pas dans la liste");
}

int Mesure(essai::Bibliotheque& b) {
  EcritGrandCarnet(b.dossier.chemin());
  SurLeDisque programme(b);
  const std::filesystem::path fichier = b.dossier.chemin() / Nom(Donnees::GLFV2);
  Releves chauffe;
  Tour(chauffe, fichier, programme.module());
  Releves releves;
  for (int tour = 0; tour < tours; ++tour) {
    Tour(releves, fichier, programme.module());
  }
  return Annonce("la fenêtre des 32 766 favoris s'ouvre", releves.ouverture, releves.lectureEtTri,
                 cible)
             ? 0
             : 1;
}

}  // namespace
}  // namespace gastrelle::bancs

int main(int argc, char** argv) {
  return gastrelle::bancs::Lance(argc, argv, gastrelle::bancs::Mesure);
}
