// What the walk does beside the recipes.

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTextBrowser>

#include "promenade/Gestes.h"
#include "promenade/Images.h"
#include "promenade/Parcours.h"

namespace gastrelle::essai {
namespace {

const QString recettes = QStringLiteral("frmRecettes");
const QString vins = QStringLiteral("frmVins");
const QString notes = QStringLiteral("frmMesNotes");
const QString courses = QStringLiteral("frmCourses");
const QString menuVue = QStringLiteral("mnuView");

void VaA(Trajet& trajet, const QString& entree, const QString& fenetre) {
  trajet.Commande(menuVue, {}, entree);
  trajet.Attend(fenetre + QStringLiteral(" devant"), [=] {
    const auto* action = LeCadre().findChild<QAction*>(entree);
    return EnfantVu(fenetre) != nullptr && action != nullptr && action->isChecked();
  });
}

void TapeNotes(Trajet& trajet) {
  VaA(trajet, QStringLiteral("mnuViewMesNotes"), notes);
  trajet.Tape(
      notes, QStringLiteral("txtSaisie"),
      QStringLiteral("Rendre le moule à Élise.\nAcheter du piment d'Espelette (8\u00A0€)."));
  trajet.Photographie(QStringLiteral("notes"));
}

void RemplitRayon(Trajet& trajet, int rayon, const QString& texte) {
  const QString liste = QStringLiteral("lstRayons");
  trajet.Fait(
      QStringLiteral("frmCourses : rayon %1").arg(rayon),
      [=] { return EstUtilisable(Cherche(EnfantVu(courses), liste)); },
      [=] { CliqueRangee(Trouve(EnfantVu(courses), liste), rayon); });
  trajet.Attend(QStringLiteral("frmCourses : rayon %1 choisi").arg(rayon), [=] {
    return Trouve<QAbstractItemView>(EnfantVu(courses), liste).currentIndex().row() == rayon;
  });
  trajet.Tape(courses, QStringLiteral("txtDetail"), texte);
}

void RemplitCourses(Trajet& trajet) {
  constexpr int legumes = 4;
  constexpr int cremerie = 6;
  VaA(trajet, QStringLiteral("mnuViewMesCourses"), courses);
  RemplitRayon(trajet, legumes, QStringLiteral("2 kg de pommes de terre\nciboulette"));
  RemplitRayon(trajet, cremerie, QStringLiteral("12 œufs"));
  trajet.Photographie(QStringLiteral("courses"));
}

void RemplitCave(Trajet& trajet) {
  constexpr int ongletVin = 6;
  constexpr int ongletCave = 7;
  VaA(trajet, QStringLiteral("mnuViewVins"), vins);
  trajet.Choisit(vins, QStringLiteral("ComboVins"), QStringLiteral("chinon"),
                 QStringLiteral("Chinon"));
  trajet.VaALOnglet(vins, ongletVin);
  trajet.Remplace(vins, QStringLiteral("txtSaisieRouge"), QStringLiteral("6"));
  trajet.Remplace(vins, QStringLiteral("txtSaisieRose"), QStringLiteral("12"));
  trajet.Tape(vins, QStringLiteral("txtNotesCave"),
              QStringLiteral("Casier du haut, à boire avant Noël."));
  trajet.Photographie(QStringLiteral("cave-saisie"));
  trajet.Clique(vins, QStringLiteral("cmdValideCave"));
  trajet.Attend(QStringLiteral("la cave est enregistrée"), [] {
    return Trouve<QTabBar>(EnfantVu(vins), QStringLiteral("TabStrip1")).currentIndex() == 0;
  });
  trajet.VaALOnglet(vins, ongletCave);
  trajet.Photographie(QStringLiteral("cave"));
  trajet.VaALOnglet(vins, 1);
}

/// Changes the preference of the printed size, which shows nowhere on the screen.
void RegleCorps(Trajet& trajet, int avant, int apres) {
  const auto option = [](int rang) { return QStringLiteral("OptPolice(%1)").arg(rang); };
  trajet.Commande(QStringLiteral("mnuFile"), {}, QStringLiteral("mnuFilePreferences"));
  trajet.DansUnDialogue([&] {
    trajet.Attend(QStringLiteral("la préférence est lue"), [=] {
      const auto* coche = Cherche<QRadioButton>(DialogueVu(), option(avant));
      return coche != nullptr && coche->isChecked();
    });
    trajet.Coche({}, option(apres));
    trajet.Photographie(QStringLiteral("preferences"));
    trajet.Clique({}, QStringLiteral("cmdOk"));
  });
}

/// Waits for the help with a page in it, and closes it.
void LitAide(Trajet& trajet, const QString& image) {
  trajet.Attend(QStringLiteral("l'aide à l'écran"), [] {
    const auto* page =
        Cherche<QTextBrowser>(FenetreVue(QStringLiteral("frmAide")), QStringLiteral("txtPage"));
    return page != nullptr && !page->document()->isEmpty();
  });
  trajet.Photographie(image);
  trajet.Fait(QStringLiteral("ferme l'aide"), {},
              [] { Frappe(*FenetreVue(QStringLiteral("frmAide")), Qt::Key_Escape); });
  trajet.Fait(
      QStringLiteral("l'aide est fermée"),
      [] { return FenetreVue(QStringLiteral("frmAide")) == nullptr; },
      // Not every system gives the keyboard back to the window below.
      [] { LeCadre().activateWindow(); });
}

/// A message about what the system lacks, if one comes.
void RepondSIlLeFaut(Trajet& trajet, const QString& image) {
  trajet.FaitSIlLeFaut(
      image + QStringLiteral(" : répond au message"), [] { return MessageVu() != nullptr; },
      [=] {
        if (ImagesVoulues()) {
          PrendImage(image);
        }
        Repond(QStringLiteral("OK"));
      });
}

/// Prints the recipe on display: a sheet of paper where there is a printer, so only if asked for.
void ImprimeRecette(Trajet& trajet) {
  if (!qEnvironmentVariableIsEmpty("PROMENADE_IMPRIME")) {
    trajet.Commande(QStringLiteral("mnuFile"), {}, QStringLiteral("mnuFilePrint"));
    RepondSIlLeFaut(trajet, QStringLiteral("impression"));
    trajet.Attend(QStringLiteral("la recette est imprimée"), {});
    trajet.Photographie(QStringLiteral("imprimee"));
  }
}

void EnvoieRecette(Trajet& trajet) {
  trajet.Commande(QStringLiteral("mnuEdit"), QStringLiteral("mnuEditEnvoyer"),
                  QStringLiteral("mnuEditEnvoyerNotePad"));
  RepondSIlLeFaut(trajet, QStringLiteral("bloc-notes"));
  trajet.Attend(QStringLiteral("le document est là"), [] {
    return QDir(QCoreApplication::applicationDirPath()).exists(QStringLiteral("recette.txt"));
  });
}

}  // namespace

void TientLaMaison(Trajet& trajet) {
  TapeNotes(trajet);
  RemplitCourses(trajet);
  RemplitCave(trajet);
  RegleCorps(trajet, 0, 1);
  RegleCorps(trajet, 1, 0);
  VaA(trajet, QStringLiteral("mnuViewRecettes"), recettes);
}

void Consulte(Trajet& trajet) {
  trajet.Fait(QStringLiteral("demande l'aide par F1"), {},
              [] { Frappe(Trouve(EnfantVu(recettes), QStringLiteral("txtRecette")), Qt::Key_F1); });
  LitAide(trajet, QStringLiteral("aide-recettes"));
  trajet.Commande(QStringLiteral("mnuHelp"), {}, QStringLiteral("mnuHelpContents"));
  LitAide(trajet, QStringLiteral("aide-sommaire"));
  ImprimeRecette(trajet);
  EnvoieRecette(trajet);
}

}  // namespace gastrelle::essai
