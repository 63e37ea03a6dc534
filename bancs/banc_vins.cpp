// How long the wines window takes to open on 32,766 wines, against one plain read of their file and
// one plain sort of their names; and the report of a cellar that holds bottles of all of them in
// nine colours, against one plain read of the file, record by record. In turns in the same run.

#include <QApplication>

#include "GrandeBibliotheque.h"
#include "Lancement.h"
#include "Ouverture.h"
#include "Plancher.h"
#include "Releve.h"
#include "controles/ListeChoix.h"
#include "vins/RapportCave.h"
#include "vins/frmVins.h"

namespace gastrelle::bancs {
namespace {

constexpr double cibleOuverture = 1.5;
constexpr double cibleRapport = 3;
constexpr int tours = 41;
constexpr int ongletRapport = 7;

struct Releves {
  Releve lectureEtTri;
  Releve ouverture;
  Releve lecture;
  Releve rapport;
  Releve balayage;
  Releve tri;
  Releve lignes;
};

void Tour(Releves& releves, const std::filesystem::path& fichier, Module1& module) {
  std::size_t attendus = 0;
  releves.lectureEtTri.Mesure([&] {
    attendus = LitEtTrie<RecVin>(fichier, [](const RecVin& /*vin*/) { return true; }).size();
  });
  essai::CadreEssai cadre(module);
  std::unique_ptr<frmVins> fenetre;
  releves.ouverture.Mesure([&] { fenetre = OuvreEtPeint<frmVins>(module, cadre); });
  const auto* vins = fenetre->findChild<QComboBox*>(QStringLiteral("ComboVins"));
  Exige(attendus == nombreVins && vins->count() == nombreVins,
        "tous les vins ne sont pas dans la liste");
  releves.lecture.Mesure([&] { attendus = LitUnAUn<RecVin>(fichier).size(); });
  releves.rapport.Mesure([&] {
    fenetre->MontreOnglet(ongletRapport);
    QApplication::processEvents();
  });
  constexpr int lignesParVin = 12;
  constexpr int lignesTotal = 11;
  const auto* rapport = fenetre->findChild<QAbstractItemView*>(QStringLiteral("List1"));
  Exige(attendus == nombreVins &&
            rapport->model()->rowCount() == nombreVins * lignesParVin + lignesTotal,
        "le rapport n'est pas entier");
  Liste enCave;
  releves.balayage.Mesure([&] { enCave = VinsEnCave(module); });
  releves.tri.Mesure([&] {
    Liste triee = enCave;
    TrieFrancais(triee);
  });
  releves.lignes.Mesure([&] { static_cast<void>(RapportCave(module, enCave)); });
}

int Mesure(essai::Bibliotheque& b) {
  EcritGrandeCave(b.dossier.chemin());
  SurLeDisque programme(b);
  const std::filesystem::path fichier = b.dossier.chemin() / Nom(Donnees::GLV2);
  Releves chauffe;
  Tour(chauffe, fichier, programme.module());
  Releves releves;
  for (int tour = 0; tour < tours; ++tour) {
    Tour(releves, fichier, programme.module());
  }
  bool tenu = Annonce("la fenêtre des 32 766 vins s'ouvre", releves.ouverture, releves.lectureEtTri,
                      cibleOuverture);
  tenu = Annonce("le rapport de toute la cave", releves.rapport, releves.lecture, cibleRapport) &&
         tenu;
  AnnoncePart("dont vins en cave", releves.balayage);
  AnnoncePart("dont tri", releves.tri);
  AnnoncePart("dont lecture dans cet ordre", releves.lignes);
  return tenu ? 0 : 1;
}

}  // namespace
}  // namespace gastrelle::bancs

int main(int argc, char** argv) {
  return gastrelle::bancs::Lance(argc, argv, gastrelle::bancs::Mesure);
}
