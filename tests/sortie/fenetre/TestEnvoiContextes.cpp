// What each tab that sends puts on the disk, against what its controls show.

#include <functional>

#include "sortie/fenetre/EnvoiCadre.h"

namespace gastrelle::essai {
namespace {

class Envoi : public EnvoiCadre {
 protected:
  /// Sends by both buttons: the two documents are alike, and each is opened.
  void AttendEnvoi(const std::string& radical, const std::string& corps) {
    for (const auto& [cle, suffixe] : {std::pair{"Ttx", ".doc"}, std::pair{"Notepad", ".txt"}}) {
      b.association.cibles.clear();
      Presse(cle);
      EXPECT_EQ(Corps(radical + suffixe), corps);
      EXPECT_TRUE(Ouvert(radical + suffixe));
    }
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_EQ(b.messages.bips, 0);
  }
};

TEST_F(Envoi, UneRecette) {
  Ouvre();
  Va("mnuViewRecettes", "frmRecettes", 1);
  Prend("ComboFamilles", "Entrées froides");
  EXPECT_EQ(Montre("txtRecette"), "Cuire les œufs…\n\nServir frais.\n");
  AttendEnvoi("recette",
              "Famille de recettes : Entrées froides\n\nRecette : Œufs mimosa\n\n"
              "Cuire les œufs…\n\nServir frais.\n\n");
}

TEST_F(Envoi, UneFamilleSansRecette) {
  Ouvre();
  Va("mnuViewRecettes", "frmRecettes", 1);
  Prend("ComboFamilles", "Sans recette");
  AttendEnvoi("recette", "Famille de recettes : Sans recette\n\nRecette : \n\n\n");
}

TEST_F(Envoi, DeuxRecettesSeRemplacent) {
  Ouvre();
  Va("mnuViewRecettes", "frmRecettes", 1);
  for (const auto& [famille, titre] :
       {std::pair{"Entrées froides", "Œufs mimosa"}, std::pair{"Potages", "Velouté"}}) {
    Prend("ComboFamilles", famille);
    Presse("Ttx");
    EXPECT_EQ(Corps("recette.doc"), std::string("Famille de recettes : ") + famille +
                                        "\n\nRecette : " + titre + "\n\n" + Montre("txtRecette") +
                                        "\n");
  }
}

TEST_F(Envoi, UnFromage) {
  OuvreSur("mnuViewFromages", "frmFromages", 1);
  Prend("ComboFromages", "Maroilles affiné");
  EXPECT_EQ(Montre("txtPremierMois") + Montre("txtDernierMois"), "FévrierAoût");
  AttendEnvoi("fromage",
              "Le fromage : Maroilles affiné\n\nSa région d'origine : Thiérache\n\n"
              "Au lait de : Brebis\n\n"
              "Meilleure période de dégustation : de Février à Août\n\n"
              "Notes :Très fort.\nÀ la bière.\n");
}

TEST_F(Envoi, UnFromageSansNotes) {
  OuvreSur("mnuViewFromages", "frmFromages", 1);
  Prend("ComboFromages", "Fromage 010");
  AttendEnvoi("fromage",
              "Le fromage : Fromage 010\n\nSa région d'origine : " + Montre("txtRegion") +
                  "\n\nAu lait de : Vache\n\n" + "Meilleure période de dégustation : de " +
                  Montre("txtPremierMois") + " à " + Montre("txtDernierMois") + "\n");
}

TEST_F(Envoi, LesFromagesDUnLait) {
  OuvreSur("mnuViewFromages", "frmFromages", 5);
  Prend("ComboLaitTrier", "Brebis");
  AttendEnvoi("fromtri", "Fromages au lait de : Brebis\nMaroilles affiné\n");
  Prend("ComboLaitTrier", "Vache");
  EXPECT_EQ(Textes(Le<QAbstractItemView>("List1")).size(), 122);
  AttendEnvoi("fromtri", "Fromages au lait de : Vache\n" + Rangs("List1"));
}

TEST_F(Envoi, UnLaitSansFromage) {
  OuvreSur("mnuViewFromages", "frmFromages", 5);
  Prend("ComboLaitTrier", "Chèvre");
  EXPECT_EQ(b.messages.vus.size(), 1U);
  AttendEnvoi("fromtri", "Fromages au lait de : Chèvre\n");
}

TEST_F(Envoi, UnMenuParLesSeulsBoutons) {
  OuvreSur("mnuViewMenus", "frmMenus", 1);
  EXPECT_FALSE(Permis("mnuEditEnvoyer"));
  Prend("ComboMenus", "Noël");
  AttendEnvoi("menu", "Menu : Noël\n\nHuîtres\nBûche\n");
}

TEST_F(Envoi, UnVin) {
  OuvreSur("mnuViewVins", "frmVins", 1);
  Prend("ComboVins", "Vouvray pétillant");
  AttendEnvoi("vin",
              "Le vin : Vouvray pétillant\n\nSa région d'origine : Touraine à part\n\n"
              "Frais.\nEn été.\n");
}

TEST_F(Envoi, UnVinSansNote) {
  OuvreSur("mnuViewVins", "frmVins", 1);
  Prend("ComboVins", "Vin 002");
  AttendEnvoi("vin", "Le vin : Vin 002\n\nSa région d'origine : Région 002\n");
}

TEST_F(Envoi, LesVinsDUneRegion) {
  OuvreSur("mnuViewVins", "frmVins", 5);
  Prend("ComboRegionVinTrier", "Touraine à part");
  AttendEnvoi("vintri", "La région d'origine : Touraine à part\nLes vins :\nVouvray pétillant\n");
  Prend("ComboRegionVinTrier", "Région 003");
  AttendEnvoi("vintri", "La région d'origine : Région 003\nLes vins :\n" + Rangs("lstTriVin"));
}

TEST_F(Envoi, UneRegionSansVin) {
  OuvreSur("mnuViewVins", "frmVins", 5);
  Prend("ComboRegionVinTrier", "Sans vin");
  AttendEnvoi("vintri", "La région d'origine : Sans vin\nLes vins :\nAucun vin mémorisé\n");
}

TEST_F(Envoi, TouteLaCave) {
  OuvreSur("mnuViewVins", "frmVins", 7);
  AttendEnvoi("vincave",
              "Toute ma cave\n\n"
              "ABYMES - Région d'origine : Alpes\n.. Blanc ........... 6\n"
              "... Total .......... 6\n\n"
              "VOUVRAY PÉTILLANT - Région d'origine : Touraine à part\n"
              ".. Rosé ............ 3\n... Total .......... 3\n\n"
              "Nombre total de bouteilles dans ma cave\n.. BLANC ........... 6\n"
              ".. ROSÉ ............ 3\n... Total .......... 9\n");
}

TEST_F(Envoi, UnTermeUnTrucOuUneAstuce) {
  OuvreSur("mnuViewTermesTrucsAstuces", "frmTrucs", 1);
  Prend("ComboTrucs", "Zeste râpé");
  AttendEnvoi("truc", "Terme, truc ou astuce : Zeste râpé\n\nSans le blanc.\n\n");
}

TEST_F(Envoi, UnFavori) {
  OuvreSur("mnuViewFavoris", "frmFavoris", 1);
  Prend("ComboFavoris", "Étoile");
  AttendEnvoi("favori",
              "Favori : Étoile\nCatégorie : Épiciers\nAdresse : 1 rue Haute\nDôle\nTéléphone : \n"
              "Fax : 01 02\nE-mail : \nSite Web : https://étoile.fr\nNotes : \n");
}

TEST_F(Envoi, LesFavorisDUneCategorie) {
  OuvreSur("mnuViewFavoris", "frmFavoris", 5);
  Prend("ComboCategorieTrier", "Épiciers");
  AttendEnvoi("favtri", "Catégorie de favoris : Épiciers\nLes favoris :\nÉtoile\n");
}

TEST_F(Envoi, UneCategorieSansFavori) {
  OuvreSur("mnuViewFavoris", "frmFavoris", 5);
  Prend("ComboCategorieTrier", "Sans favori");
  AttendEnvoi("favtri",
              "Catégorie de favoris : Sans favori\nLes favoris :\nAucun favori mémorisé\n");
}

}  // namespace
}  // namespace gastrelle::essai
