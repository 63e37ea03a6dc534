// How long the recipes window takes to fill its list with 32,766 recipes, against one plain read of
// the file and one plain sort of its names, in turns in the same run.

#include <stdexcept>
#include <string>

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

#include "GrandeBibliotheque.h"
#include "Lancement.h"
#include "Plancher.h"
#include "Releve.h"
#include "controles/ComboListe.h"
#include "data/Main.h"
#include "doublures/Bibliotheque.h"
#include "doublures/CadreEssai.h"
#include "plateforme/Disque.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettes.h"

namespace gastrelle::bancs {
namespace {

constexpr double cible = 1.5;
constexpr double cibleAlpha = 1.4;
constexpr int tours = 41;
constexpr std::int32_t laFamille = 2;

ComboListe& Combo(QWidget& fenetre, const char* nom) {
  auto* combo = dynamic_cast<ComboListe*>(fenetre.findChild<QComboBox*>(QLatin1String(nom)));
  if (combo == nullptr) {
    throw std::runtime_error(std::string("pas de liste ") + nom);
  }
  return *combo;
}

void Exige(bool condition, const char* sinon) {
  if (!condition) {
    throw std::runtime_error(sinon);
  }
}

struct Releves {
  Releve plancher;
  Releve evenement;
  Releve lecture;
  Releve tri;
  Releve modele;
  Releve affichage;
  Releve peinture;
  Releve deroulement;
  Releve lettre;
  Releve classement;
};

void Tour(Releves& releves, const std::filesystem::path& fichier, Module1& module,
          QWidget& fenetre) {
  ComboListe& familles = Combo(fenetre, "ComboFamilles");
  ComboListe& recettes = Combo(fenetre, "ComboRecettes");
  std::size_t attendues = 0;
  releves.plancher.Mesure([&] {
    attendues = LitEtTrie<RecRecette>(fichier, [](const RecRecette& r) {
                  return r.idFamille == laFamille;
                }).size();
  });
  releves.evenement.Mesure([&] { familles.Choisit(0); });
  releves.peinture.Mesure([] { QApplication::processEvents(); });
  Exige(attendues == nombreRecettes && recettes.entrees().size() == attendues,
        "toutes les recettes ne sont pas dans la liste");

  Liste lues;
  releves.lecture.Mesure([&] { lues = RecettesDeFamille(module, laFamille); });
  Liste triee = lues;
  releves.tri.Mesure([&] { TrieFrancais(triee); });
  ComboListe essai(QStringLiteral("essai"), Ordre::insertion);
  releves.modele.Mesure([&] { essai.Ajoute(triee); });
  releves.affichage.Mesure([&] { recettes.Choisit(0); });
  QApplication::processEvents();
  releves.deroulement.Mesure([&] {
    recettes.showPopup();
    QApplication::processEvents();
  });
  // The worst case: no title fits, each is looked at to its end.
  releves.lettre.Mesure([&] {
    QKeyEvent touche(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("~"));
    QApplication::sendEvent(recettes.view(), &touche);
    QApplication::processEvents();
  });
  recettes.hidePopup();
  QApplication::processEvents();
  constexpr int ongletAlpha = 5;
  auto& hote = dynamic_cast<frmRecettes&>(fenetre);
  releves.classement.Mesure([&] {
    hote.ChoisitOnglet(ongletAlpha);
    QApplication::processEvents();
  });
  hote.ChoisitOnglet(ongletListe);
  QApplication::processEvents();
}

int Mesure(essai::Bibliotheque& b) {
  EcritGrandeBibliotheque(b.dossier.chemin());
  Disque disque(b.dossier.chemin());
  Services services = b.module->services;
  Module1 module({disque, services.messages, services.pointeur, services.horloge,
                  services.association, services.son, services.processus, services.imprimante},
                 b.module->chemins);
  Main(module, false, [] {});
  essai::CadreEssai cadre(module);
  frmRecettes fenetre(module, cadre);
  fenetre.show();
  fenetre.Active();
  QApplication::processEvents();
  const std::filesystem::path fichier = b.dossier.chemin() / Nom(Donnees::GLR2);
  Releves chauffe;
  Tour(chauffe, fichier, module, fenetre);
  Releves releves;
  for (int tour = 0; tour < tours; ++tour) {
    Tour(releves, fichier, module, fenetre);
  }
  bool tenu =
      Annonce("choix d'une famille de 32 766 recettes", releves.evenement, releves.plancher, cible);
  AnnoncePart("dont lecture du fichier", releves.lecture);
  AnnoncePart("dont tri", releves.tri);
  AnnoncePart("dont mise en liste", releves.modele);
  AnnoncePart("dont affichage de la première recette", releves.affichage);
  AnnoncePart("ensuite, peinture de la fenêtre", releves.peinture);
  tenu = Annonce("sa liste se déroule", releves.deroulement, releves.plancher, cible) && tenu;
  tenu = Annonce("une lettre s'y cherche", releves.lettre, releves.plancher, cible) && tenu;
  tenu = Annonce("une recette se choisit", releves.affichage, releves.plancher, cible) && tenu;
  tenu =
      Annonce("l'onglet Alpha s'ouvre", releves.classement, releves.plancher, cibleAlpha) && tenu;
  return tenu ? 0 : 1;
}

}  // namespace
}  // namespace gastrelle::bancs

int main(int argc, char** argv) {
  return gastrelle::bancs::Lance(argc, argv, gastrelle::bancs::Mesure);
}
