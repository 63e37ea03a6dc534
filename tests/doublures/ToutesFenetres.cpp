#include "doublures/ToutesFenetres.h"

#include "favoris/frmFavoris.h"
#include "fiches/frmMenus.h"
#include "fiches/frmTrucs.h"
#include "fromages/frmFromages.h"
#include "listes/frmCourses.h"
#include "listes/frmMesNotes.h"
#include "recettes/frmRecettes.h"
#include "vins/frmMillesime.h"
#include "vins/frmVins.h"

namespace gastrelle::essai {
namespace {

template <class Fenetre>
std::unique_ptr<FenetreEnfant> Cree(Module1& module, gastrelle::Cadre& cadre) {
  return std::make_unique<Fenetre>(module, cadre);
}

const std::vector<LigneEssai> lignes{
    {"frmRecettes",
     "mnuViewRecettes",
     "Recette",
     11,
     {{5, 3}, {5, 4}},
     {"ComboFamilles ComboRecettes txtRecette cmdCameraListe cmdAideListe",
      "Option1(1) ComboFamillesAjouter txtSaisieNomRecette txtSaisieRecetteAjouter "
      "txtImageAjouter cmdImageAjouter PictureWeb cmdValideAjouter cmdEffacerAjouter "
      "cmdAideAjouter",
      "Option2(1) ComboFamillesModifier txtSaisieNomRecetteModifier "
      "txtSaisieRecetteModifier txtImageModifier cmdImageModifier cmdValideModifier "
      "cmdEffacerModifier cmdAideModifier",
      "Option3(1) txtTexteRecetteSupprimer cmdSupprimer cmdAideSupprimer",
      "lstRecettesTri cmdValideTri cmdAideClassement"},
     Cree<frmRecettes>},
    {"frmFromages",
     "mnuViewFromages",
     "Fromage",
     21,
     {{5, 3}, {5, 4}},
     {"ComboFromages txtRegion txtLait txtPremierMois txtDernierMois txtNotes cmdAideListe",
      "txtFromageAjouter txtRegionAjouter ComboLaitAjouter ComboPremierMoisAjouter "
      "ComboDernierMoisAjouter txtNotesAjouter cmdValideAjouter cmdEffacerAjouter cmdAideAjouter",
      "txtFromageModifier txtRegionModifier ComboLaitModifier ComboPremierMoisModifier "
      "ComboDernierMoisModifier txtNotesModifier cmdValiderModifier cmdEffacerModifier "
      "cmdAideModifier",
      "txtFromageSupprimer txtRegionSupprimer txtLaitSupprimer txtPremierMoisSupprimer "
      "txtDernierMoisSupprimer txtNotesSupprimer cmdSupprimer cmdAideSupprimer",
      "ComboLaitTrier cmdAide"},
     Cree<frmFromages>},
    {"frmMenus",
     "mnuViewMenus",
     "Menu",
     31,
     {},
     {"ComboMenus txtMenu cmdAideListe",
      "txtSaisieNomMenu txtSaisieMenuAjouter cmdValideAjouter cmdEffacerAjouter cmdAideAjouter",
      "txtSaisieNomMenuModifier txtSaisieMenuModifier cmdValideModifier cmdEffacerModifier "
      "cmdAideModifier",
      "txtSaisieNomSupprimer txtSaisieMenuSupprimer cmdSupprimer cmdAideSupprimer"},
     Cree<frmMenus>},
    {"frmVins",
     "mnuViewVins",
     "Vin",
     41,
     {{5, 3}, {5, 4}, {5, 6}},
     {"ComboVins txtRegion txtNotes cmdAideListe",
      "Option1(1) txtSaisieNomVin ComboRegionVinAjouter txtSaisieNoteAjouter "
      "cmdValideAjouter cmdEffacerAjouter cmdAideAjouter",
      "Option2(1) txtSaisieNomVinModifier ComboRegionVinModifier(1) "
      "txtSaisieNoteModifier cmdValideModifier cmdEffacerModifier cmdAideModifier",
      "Option3(1) txNomVinSupprimer txtRegionVinSupprimer txtNoteVinSupprimer "
      "cmdValideSupprimer cmdAideSupprimer",
      "ComboRegionVinTrier cmdAideTrier",
      "txtVinCave txtRegionCave txtSaisieBlanc txtSaisieRouge txtSaisieRose txtSaisieChampagne "
      "txtSaisieVDN txtSaisieJaune txtSaisiePaille txtSaisieMousseux txtSaisieGris txtNotesCave "
      "cmdValideCave cmdEffacerCave cmdAideCave",
      "List1 cmdAideTouteMaCave"},
     Cree<frmVins>},
    {"frmMillesime",
     "mnuViewMillesimes",
     "Millesime",
     51,
     {},
     {"ComboCru MSFlexGrid2 cmdAideListe",
      "OptionBordeauxRouges(5) OptionBordeauxBlancs(5) OptionBourgognesRouges(5) "
      "OptionBourgognesBlancs(5) OptionCrusDesCotesDuRhone(5) OptionAlsace(5) "
      "OptionPouillySancerre(5) OptionAnjouTouraineMuscadet(5) OptionCrusDuBeaujolais(5) "
      "cmdValideAjouter cmdAideAjouter",
      "OptionBordeauxRougesModifier(5) OptionBordeauxBlancsModifier(0) "
      "OptionBourgognesRougesModifier(1) OptionBourgognesBlancsModifier(2) "
      "OptionCrusDesCotesDuRhoneModifier(3) OptionAlsaceModifier(4) "
      "OptionPouillySancerreModifier(5) OptionAnjouTouraineMuscadetModifier(0) "
      "OptionCrusDuBeaujolaisModifier(1) cmdValideModifier cmdEffacerModifier cmdAideModifier"},
     Cree<frmMillesime>},
    {"frmTrucs",
     "mnuViewTermesTrucsAstuces",
     "Tool",
     61,
     {},
     {"ComboTrucs txtTruc cmdAideListe",
      "txtSaisieNomTruc txtSaisieTrucAjouter cmdValideAjouter cmdEffacerAjouter cmdAideAjouter",
      "txtSaisieNomTrucModifier txtSaisieTrucModifier cmdValideModifier cmdEffacerModifier "
      "cmdAideModifier",
      "txtSaisieNomSupprimer txtSaisieTrucSupprimer cmdSupprimer cmdAideSupprimer"},
     Cree<frmTrucs>},
    {"frmFavoris",
     "mnuViewFavoris",
     "Favoris",
     71,
     {{5, 3}, {5, 4}},
     {"ComboFavoris txtCategorie txtAdresse txtTelephone txtFax txtEmail txtWeb txtNotes "
      "cmdAideListe",
      "Option1(1) ComboCategorieAjouter txtNomFavoriAjouter txtAdresseAjouter "
      "txtTelephoneAjouter txtFaxAjouter txtEmailAjouter txtWebAjouter txtNoteAjouter "
      "cmdValideAjouter cmdEffacerAjouter cmdAideAjouter",
      "Option2(1) ComboCategorie1Modifier txtNomFavoriModifier txtAdresseModifier "
      "txtTelephoneModifier txtFaxModifier txtEmailModifier txtWebModifier txtNoteModifier "
      "cmdValideModifier cmdEffacerModifier cmdAideModifier",
      "Option3(1) txtCategorieFavoriSupprimer txtNomFavoriSupprimer "
      "txtAdresseSupprimer txtTelephoneSupprimer txtFaxSupprimer txtEmailSupprimer "
      "txtWebSupprimer txtNoteSupprimer cmdValideSupprimer cmdAideSupprimer",
      "ComboCategorieTrier cmdAideTrier"},
     Cree<frmFavoris>},
    {"frmMesNotes",
     "mnuViewMesNotes",
     "MesNotes",
     90,
     {},
     {"txtSaisie cmdAide"},
     Cree<frmMesNotes>},
    {"frmCourses",
     "mnuViewMesCourses",
     "MesCourses",
     100,
     {},
     {"lstRayons txtDetail cmdNouveau cmdAide"},
     Cree<frmCourses>},
};

}  // namespace

std::span<const LigneEssai> ToutesLesFenetres() {
  return lignes;
}

}  // namespace gastrelle::essai
