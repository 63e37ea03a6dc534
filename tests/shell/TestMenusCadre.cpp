// The frame's menus and toolbar as the user reads them.

#include <QMenuBar>
#include <QToolButton>

#include "doublures/CadreVrai.h"
#include "shell/MenusCadre.h"

namespace gastrelle::essai {
namespace {

class MenusDuCadre : public CadreVrai {};

/// "name caption" of each line, submenus indented.
QStringList Lignes(const QMenu& menu, const QString& retrait = {}) {
  QStringList lignes;
  for (const QAction* action : menu.actions()) {
    if (action->menu() != nullptr) {
      lignes << retrait + action->menu()->objectName() + u' ' + action->menu()->title();
      lignes << Lignes(*action->menu(), retrait + u' ');
    } else {
      const QString titre = action->isSeparator() ? QString() : u' ' + action->text();
      lignes << retrait + action->objectName() + titre;
    }
  }
  return lignes;
}

TEST_F(MenusDuCadre, SontAuCompletDansLeurOrdre) {
  Ouvre();
  QStringList titres;
  for (const QAction* menu : cadre->menuBar()->actions()) {
    titres << menu->menu()->objectName() + u' ' + menu->text();
  }
  EXPECT_EQ(titres, (QStringList{"mnuFile &Fichier", "mnuEdit &Edition", "mnuView Affic&hage",
                                 Fr("mnuWindow Fe&nêtre"), "mnuHelp &?"}));
}

TEST_F(MenusDuCadre, UneToucheTenueEnfonceeEstUneSeuleCommande) {
  Ouvre();
  int entrees = 0;
  for (const QAction* action : cadre->findChildren<QAction*>()) {
    if (action->objectName().startsWith(QLatin1String("mnu")) && !action->shortcuts().isEmpty()) {
      EXPECT_FALSE(action->autoRepeat()) << action->objectName().toStdString();
      ++entrees;
    }
  }
  EXPECT_GT(entrees, 5);
}

TEST_F(MenusDuCadre, Fichier) {
  Ouvre();
  EXPECT_EQ(Lignes(Le<QMenu>("mnuFile")),
            (QStringList{
                "mnuFilePrint &Imprimer", "mnuFileBar0", Fr("mnuFilePreferences &Préférences"),
                "mnuFileBar1", "mnuFileMaintenance &Maintenance", " mnuFileProperties &Nettoyage",
                " mnuFilePropertiesSupp &Suppression de toutes les recettes",
                Fr(" mnuFilePropertiesReini &Réinitialisation des fichiers \"Recettes\""),
                "mnuFileBar2", "mnuFileExport E&xporter", "mnuFileBar3", "mnuFileExit &Quitter"}));
}

TEST_F(MenusDuCadre, Edition) {
  Ouvre();
  EXPECT_EQ(Lignes(Le<QMenu>("mnuEdit")),
            (QStringList{"mnuEditCut &Couper", "mnuEditCopy C&opier", "mnuEditPaste Co&ller",
                         Fr("mnuEditSelect Sélectionner &tout"), "mnuEditBar0",
                         "mnuEditRechercher &Rechercher...", "mnuEditBar1",
                         "mnuEditEnvoyer &Envoyer", " mnuEditEnvoyerTtx &Traitement de texte",
                         " mnuEditEnvoyerNotePad &Bloc-notes"}));
}

TEST_F(MenusDuCadre, Affichage) {
  Ouvre();
  EXPECT_EQ(
      Lignes(Le<QMenu>("mnuView")),
      (QStringList{
          "mnuViewRecettes &Recettes", "mnuViewFromages &Fromages", "mnuViewMenus &Menus",
          "mnuViewVins &Vins", Fr("mnuViewMillesimes Mi&llésimes des vins"),
          "mnuViewTermesTrucsAstuces &Termes, trucs et astuces", "mnuViewFavoris Mes fav&oris",
          "mnuViewMesNotes Mes &notes", "mnuViewMesCourses Mes &courses", "mnuViewBar1",
          "mnuViewBarreOutils Barre d'outils", "mnuViewBarreStatut Barre de statuts", "mnuViewBar2",
          "mnuViewImage &Image", Fr(" mnuViewImageVisuAssocie Visualisateur a&ssocié"),
          " mnuViewImageVisuInterne Visualisateur &interne"}));
}

TEST_F(MenusDuCadre, FenetreEtAide) {
  Ouvre();
  EXPECT_EQ(
      Lignes(Le<QMenu>("mnuWindow")),
      (QStringList{
          "mnuWindowCascade &En cascade", Fr("mnuWindowTileHorizontal Mosaïque &horizontale"),
          Fr("mnuWindowTileVertical Mosaïque &verticale"),
          Fr("mnuWindowArrangeIcons &Réorganiser les icônes"), "mnuWindowClose Tout &fermer"}));
  EXPECT_EQ(Lignes(Le<QMenu>("mnuHelp")),
            (QStringList{"mnuHelpContents &Sommaire de l'aide", "mnuHelpBar0",
                         "mnuHelpGlSurLeWeb Gastrelle sur le &Web", "mnuHelpBar2",
                         "mnuHelpAbout A &propos de Gastrelle 2005..."}));
}

TEST_F(MenusDuCadre, LesClesDAccesDUnMenuNeSeHeurtentPas) {
  Ouvre();
  for (const QMenu* menu : cadre->findChildren<QMenu*>()) {
    QStringList cles;
    for (const QAction* action : menu->actions()) {
      const QString cle = QKeySequence::mnemonic(action->text()).toString();
      EXPECT_FALSE(!cle.isEmpty() && cles.contains(cle)) << action->text().toStdString();
      cles << cle;
    }
  }
}

TEST_F(MenusDuCadre, UneCleMalEcriteEchoueAussitot) {
  QMainWindow fenetre;
  BarresCadre barres(fenetre);
  barres.SurCommande("mnuFilePrint", [] {});
  EXPECT_THROW(barres.SurCommande("mnuFilePrnt", [] {}), std::invalid_argument);
  EXPECT_THROW(barres.SurCommande("mnuFile", [] {}), std::invalid_argument);  // a menu does nothing
  EXPECT_THROW(static_cast<void>(barres.Entree("Print")), std::invalid_argument);
  EXPECT_THROW(static_cast<void>(barres.Menu("mnuFilePrint")), std::invalid_argument);
}

TEST_F(MenusDuCadre, LesTouchesSontAuMenu) {
  Ouvre();
  QStringList touches;
  for (const QAction* action : Le<QMenu>("mnuView").actions()) {
    if (!action->shortcut().isEmpty()) {
      touches << action->objectName().mid(7) + u' ' + action->shortcut().toString();
    }
  }
  EXPECT_EQ(touches, (QStringList{"Recettes Ctrl+1", "Fromages Ctrl+2", "Menus Ctrl+3",
                                  "Vins Ctrl+4", "Millesimes Ctrl+5", "TermesTrucsAstuces Ctrl+6",
                                  "Favoris Ctrl+7", "MesNotes Ctrl+8", "MesCourses Ctrl+9"}));
  EXPECT_EQ(Entree("mnuFilePreferences").shortcut().toString(), "Ctrl+,");
}

TEST_F(MenusDuCadre, AucuneToucheNeServeDeuxFois) {
  Ouvre();
  QStringList prises;
  for (const QAction* action : cadre->findChildren<QAction*>()) {
    for (const QKeySequence& touche : action->shortcuts()) {
      EXPECT_FALSE(prises.contains(touche.toString())) << touche.toString().toStdString();
      prises << touche.toString();
    }
  }
  for (const char* reservee : {"Ctrl++", "Ctrl+-", "Ctrl+0"}) {  // the size of the text
    EXPECT_FALSE(prises.contains(reservee)) << reservee;
  }
}

TEST_F(MenusDuCadre, ChaqueBoutonVautSonEntree) {
  QStringList vus;
  for (const gastrelle::BoutonBarre& bouton : BarreOutils()) {
    vus << QString::fromLatin1(bouton.cle) + u'=' + QString::fromLatin1(bouton.entree);
  }
  EXPECT_EQ(
      vus, (QStringList{
               "Recette=mnuViewRecettes", "Fromage=mnuViewFromages", "Menu=mnuViewMenus",
               "Vin=mnuViewVins", "Millesime=mnuViewMillesimes", "Tool=mnuViewTermesTrucsAstuces",
               "Favoris=mnuViewFavoris", "MesNotes=mnuViewMesNotes", "MesCourses=mnuViewMesCourses",
               "Print=mnuFilePrint", "Couper=mnuEditCut", "Copier=mnuEditCopy",
               "Coller=mnuEditPaste", "Find=mnuEditRechercher", "Ttx=mnuEditEnvoyerTtx",
               "Notepad=mnuEditEnvoyerNotePad", "Help=mnuHelpContents", "Exit=mnuFileExit"}));
}

TEST_F(MenusDuCadre, LesNeufFenetresEtEllesSeulesOntUnBoutonQuiSeCoche) {
  Ouvre();
  for (const gastrelle::BoutonBarre& ligne : BarreOutils()) {
    const auto& bouton = static_cast<QToolButton&>(BoutonBarre(ligne.cle));
    EXPECT_EQ(bouton.isCheckable(), std::string_view(ligne.entree).starts_with("mnuView"))
        << ligne.cle;
  }
}

TEST_F(MenusDuCadre, LaBarreADixHuitBoutonsAvecInfobulleEtImage) {
  Ouvre();
  QStringList vus;
  for (const QAction* action : Le<QToolBar>("tbToolBar").actions()) {
    if (action->isSeparator()) {
      vus << "|";
      continue;
    }
    const QWidget* bouton = Le<QToolBar>("tbToolBar")
                                .widgetForAction(const_cast<QAction*>(
                                    action));  // NOLINT(cppcoreguidelines-pro-type-const-cast)
    vus << bouton->objectName().mid(10) + u'=' + bouton->toolTip();
    EXPECT_FALSE(action->icon().isNull()) << bouton->objectName().toStdString();
    EXPECT_EQ(bouton->accessibleName(), bouton->toolTip());
  }
  EXPECT_EQ(vus, (QStringList{"Recette=Les recettes",
                              "Fromage=Les fromages",
                              "Menu=Les menus",
                              "Vin=Les vins, ma cave",
                              Fr("Millesime=Les millésimes des vins"),
                              "Tool=Les termes, trucs et astuces",
                              "Favoris=Mes favoris",
                              "MesNotes=Mes notes",
                              "MesCourses=Mes courses",
                              "|",
                              "Print=Imprimer",
                              "|",
                              "Couper=Couper",
                              "Copier=Copier",
                              "Coller=Coller",
                              "|",
                              "Find=Rechercher",
                              "|",
                              "Ttx=Envoyer dans traitement de texte",
                              "Notepad=Envoyer dans bloc-notes",
                              "|",
                              "Help=Sommaire de l'aide",
                              "Exit=Quitter Gastrelle 2005"}));
}

}  // namespace
}  // namespace gastrelle::essai
