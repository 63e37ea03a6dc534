#include "shell/MenusCadre.h"

#include <algorithm>
#include <array>

namespace gastrelle {
namespace {

using enum Genre;

// A French keyboard has its digits on the shifted row: there the bare key stands for its digit. Not
// that of 6, which is the minus sign: with Ctrl that makes a text smaller.
constexpr std::array<EntreeMenu, 53> entrees{{
    {menu, "mnuFile", u"&Fichier"},
    {entree, "mnuFilePrint", u"&Imprimer", "Ctrl+P", "imprimer"},
    {separateur, "mnuFileBar0"},
    {entree, "mnuFilePreferences", u"&Préférences", "Ctrl+,"},
    {separateur, "mnuFileBar1"},
    {sousMenu, "mnuFileMaintenance", u"&Maintenance"},
    {sousEntree, "mnuFileProperties", u"&Nettoyage"},
    {sousEntree, "mnuFilePropertiesSupp", u"&Suppression de toutes les recettes"},
    {sousEntree, "mnuFilePropertiesReini", u"&Réinitialisation des fichiers \"Recettes\""},
    {separateur, "mnuFileBar2"},
    {entree, "mnuFileExport", u"E&xporter"},
    {separateur, "mnuFileBar3"},
    {entree, "mnuFileExit", u"&Quitter", "Ctrl+Q", "quitter"},

    {menu, "mnuEdit", u"&Edition"},
    {entree, "mnuEditCut", u"&Couper", "Ctrl+X", "couper"},
    {entree, "mnuEditCopy", u"C&opier", "Ctrl+C", "copier"},
    {entree, "mnuEditPaste", u"Co&ller", "Ctrl+V", "coller"},
    {entree, "mnuEditSelect", u"Sélectionner &tout", "Ctrl+A"},
    {separateur, "mnuEditBar0"},
    {entree, "mnuEditRechercher", u"&Rechercher...", "Ctrl+F", "rechercher"},
    {separateur, "mnuEditBar1"},
    {sousMenu, "mnuEditEnvoyer", u"&Envoyer"},
    {sousEntree, "mnuEditEnvoyerTtx", u"&Traitement de texte", "", "traitement"},
    {sousEntree, "mnuEditEnvoyerNotePad", u"&Bloc-notes", "", "blocnotes"},

    {menu, "mnuView", u"Affic&hage"},
    {entree, "mnuViewRecettes", u"&Recettes", "Ctrl+1; Ctrl+&", "", true},
    {entree, "mnuViewFromages", u"&Fromages", "Ctrl+2; Ctrl+é", "", true},
    {entree, "mnuViewMenus", u"&Menus", "Ctrl+3; Ctrl+\"", "", true},
    {entree, "mnuViewVins", u"&Vins", "Ctrl+4; Ctrl+'", "", true},
    {entree, "mnuViewMillesimes", u"Mi&llésimes des vins", "Ctrl+5; Ctrl+(", "", true},
    {entree, "mnuViewTermesTrucsAstuces", u"&Termes, trucs et astuces", "Ctrl+6", "", true},
    {entree, "mnuViewFavoris", u"Mes fav&oris", "Ctrl+7; Ctrl+è", "", true},
    {entree, "mnuViewMesNotes", u"Mes &notes", "Ctrl+8; Ctrl+_", "", true},
    {entree, "mnuViewMesCourses", u"Mes &courses", "Ctrl+9; Ctrl+ç", "", true},
    {separateur, "mnuViewBar1"},
    {entree, "mnuViewBarreOutils", u"Barre d'outils", "", "", true},
    {entree, "mnuViewBarreStatut", u"Barre de statuts", "", "", true},
    {separateur, "mnuViewBar2"},
    {sousMenu, "mnuViewImage", u"&Image"},
    {sousEntree, "mnuViewImageVisuAssocie", u"Visualisateur a&ssocié"},
    {sousEntree, "mnuViewImageVisuInterne", u"Visualisateur &interne"},

    {menu, "mnuWindow", u"Fe&nêtre"},
    {entree, "mnuWindowCascade", u"&En cascade"},
    {entree, "mnuWindowTileHorizontal", u"Mosaïque &horizontale"},
    {entree, "mnuWindowTileVertical", u"Mosaïque &verticale"},
    {entree, "mnuWindowArrangeIcons", u"&Réorganiser les icônes"},
    {entree, "mnuWindowClose", u"Tout &fermer"},

    {menu, "mnuHelp", u"&?"},
    {entree, "mnuHelpContents", u"&Sommaire de l'aide", "", "aide"},
    {separateur, "mnuHelpBar0"},
    {entree, "mnuHelpGlSurLeWeb", u"Gastrelle sur le &Web", "", "web"},
    {separateur, "mnuHelpBar2"},
    {entree, "mnuHelpAbout", u"A &propos de Gastrelle 2005..."},
}};

constexpr std::array<BoutonBarre, 18> boutons{{
    {"Recette", u"Les recettes", "mnuViewRecettes", "recette"},
    {"Fromage", u"Les fromages", "mnuViewFromages", "fromage"},
    {"Menu", u"Les menus", "mnuViewMenus", "menu"},
    {"Vin", u"Les vins, ma cave", "mnuViewVins", "vin"},
    {"Millesime", u"Les millésimes des vins", "mnuViewMillesimes", "millesime"},
    {"Tool", u"Les termes, trucs et astuces", "mnuViewTermesTrucsAstuces", "truc"},
    {"Favoris", u"Mes favoris", "mnuViewFavoris", "favoris"},
    {"MesNotes", u"Mes notes", "mnuViewMesNotes", "mesnotes"},
    {"MesCourses", u"Mes courses", "mnuViewMesCourses", "mescourses"},
    {"Print", u"Imprimer", "mnuFilePrint", "imprimer", true},
    {"Couper", u"Couper", "mnuEditCut", "couper", true},
    {"Copier", u"Copier", "mnuEditCopy", "copier"},
    {"Coller", u"Coller", "mnuEditPaste", "coller"},
    {"Find", u"Rechercher", "mnuEditRechercher", "rechercher", true},
    {"Ttx", u"Envoyer dans traitement de texte", "mnuEditEnvoyerTtx", "traitement", true},
    {"Notepad", u"Envoyer dans bloc-notes", "mnuEditEnvoyerNotePad", "blocnotes"},
    {"Help", u"Sommaire de l'aide", "mnuHelpContents", "aide", true},
    {"Exit", u"Quitter Gastrelle 2005", "mnuFileExit", "quitter"},
}};

}  // namespace

std::span<const EntreeMenu> EntreesMenus() {
  return entrees;
}

std::span<const BoutonBarre> BarreOutils() {
  return boutons;
}

const char* ImageDuBouton(std::string_view entree) {
  const auto* const bouton =
      std::find_if(boutons.begin(), boutons.end(),
                   [entree](const BoutonBarre& ligne) { return ligne.entree == entree; });
  return bouton == boutons.end() ? "" : bouton->icone;
}

}  // namespace gastrelle
