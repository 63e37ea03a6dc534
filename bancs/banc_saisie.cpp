// How long a key takes in a text of 30,000 characters on a sheet, against the toolkit's plain box
// with the same text, in turns in the same run: from the key to the painted letter.

#include <array>
#include <string>

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

#include "Lancement.h"
#include "Releve.h"
#include "controles/Conversion.h"
#include "controles/FeuilleTexte.h"
#include "data/Limites.h"

namespace gastrelle::bancs {
namespace {

constexpr double cible = 1.5;
constexpr double cibleToucheMs = 16;
constexpr int tours = 201;
constexpr int placeLaissee = 1000;

/// As many recipes as a text may hold, and none of it in one line.
std::string LongTexte() {
  constexpr std::string_view recette =
      "Pour 4 personnes\r\nCuisson\xA0: 20 min\r\n\r\nIngr\xE9"
      "dients\r\n- 1 oignon\r\n- 800 g de gigot\r\n\r\n\xC9tapes\r\n1. Couper la viande en cubes "
      "de "
      "3 cm, couper les poivrons, les oignons en quartiers.\r\n2. Servir.\r\n";
  std::string texte;
  while (texte.size() + recette.size() < limiteTexte - placeLaissee) {
    texte += recette;
  }
  return texte;
}

/// The same as one single line.
std::string LongueLigne() {
  std::string texte;
  while (texte.size() < limiteTexte - placeLaissee) {
    texte += "Couper la viande en cubes et la laisser au frais. ";
  }
  return texte;
}

void Tape(QWidget& boite) {
  QKeyEvent appui(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
  QApplication::sendEvent(&boite, &appui);
  QKeyEvent relache(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
  QApplication::sendEvent(&boite, &relache);
  QApplication::processEvents();
}

void Prepare(QPlainTextEdit& boite, const QFont& police) {
  boite.setFont(police);
  boite.resize(800, 600);
  boite.show();
  boite.setFocus();
  QTextCursor milieu(boite.document());
  milieu.setPosition(boite.document()->characterCount() / 2);
  boite.setTextCursor(milieu);
  QApplication::processEvents();
}

bool Mesure(const std::string& nom, const std::string& texte) {
  FeuilleTexte feuille(QStringLiteral("feuille"), limiteTexte);
  feuille.PoseTexte(texte);
  Prepare(feuille, feuille.font());
  QPlainTextEdit simple;
  simple.setPlainText(VersEcran(texte));
  Prepare(simple, feuille.font());
  Releve mesure;
  Releve plancher;
  Releve seize;
  for (int tour = 0; tour < tours; ++tour) {
    plancher.Mesure([&] { Tape(simple); });
    mesure.Mesure([&] { Tape(feuille); });
    seize.Ajoute(Millisecondes(cibleToucheMs));
  }
  const bool legere = Annonce("une touche dans " + nom, mesure, plancher, cible);
  return Annonce("la même, contre 16 ms", mesure, seize, 1) && legere;
}

int MesureTout(const essai::Bibliotheque& /*bibliotheque*/) {
  const bool recettes = Mesure("30 000 lettres de recettes", LongTexte());
  const bool ligne = Mesure("une ligne de 30 000 lettres", LongueLigne());
  return recettes && ligne ? 0 : 1;
}

}  // namespace
}  // namespace gastrelle::bancs

int main(int argc, char** argv) {
  return gastrelle::bancs::Lance(argc, argv, gastrelle::bancs::MesureTout);
}
