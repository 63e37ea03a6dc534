// The entries and the buttons that send: where they can be used, and what they do where nothing is
// chosen, nothing can be written or nothing opens.

#include <set>

#include <QTest>

#include "doublures/ToutesFenetres.h"
#include "sortie/fenetre/EnvoiCadre.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommandesEnvoi : public EnvoiCadre {};

TEST_F(CommandesEnvoi, LesEntreesDuMenuEnvoientAussi) {
  Ouvre();
  Choisit("mnuEditEnvoyerTtx");
  EXPECT_TRUE(Ouvert("recette.doc"));
  b.association.cibles.clear();
  Choisit("mnuEditEnvoyerNotePad");
  EXPECT_TRUE(Ouvert("recette.txt"));
  EXPECT_EQ(b.dossier.Lit("recette.txt"), b.dossier.Lit("recette.doc"));
  EXPECT_FALSE(b.dossier.Lit("recette.txt").empty());
}

TEST_F(CommandesEnvoi, LesBoutonsNeServentQuAuxOnzeOnglets) {
  const std::set<int> onze{11, 21, 25, 31, 41, 45, 47, 51, 61, 71, 75};
  Ouvre();
  std::set<int> permis;
  for (const LigneEssai& ligne : ToutesLesFenetres()) {
    Choisit(ligne.entree);
    for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
      if (ligne.onglets() > 1) {
        CliqueOnglet(Le(ligne.nom), 1);  // from which no tab is refused
        CliqueOnglet(Le(ligne.nom), onglet);
      }
      QApplication::processEvents();
      const bool ttx = BoutonBarre("Ttx").isEnabled();
      EXPECT_EQ(ttx, BoutonBarre("Notepad").isEnabled()) << b.module->contexteActif;
      if (ttx) {
        permis.insert(b.module->contexteActif);
      }
    }
  }
  EXPECT_EQ(permis, onze);
}

TEST_F(CommandesEnvoi, UnBoutonGriseNEcritRien) {
  OuvreSur("mnuViewVins", "frmVins", 6);
  for (const char* cle : {"Ttx", "Notepad"}) {
    QTest::mouseClick(&BoutonBarre(cle), Qt::LeftButton);
  }
  EXPECT_THAT(b.association.cibles, IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_FALSE(b.dossier.A("vin.doc"));
}

TEST_F(CommandesEnvoi, UnTriSansChoixNeDonneQuUnBip) {
  Ouvre();
  for (const auto& [entree, fenetre] :
       {std::pair{"mnuViewFromages", "frmFromages"}, std::pair{"mnuViewVins", "frmVins"},
        std::pair{"mnuViewFavoris", "frmFavoris"}}) {
    SCOPED_TRACE(fenetre);
    Va(entree, fenetre, 5);
    b.disque.OublieJournal();
    for (const char* cle : {"Ttx", "Notepad"}) {
      b.messages.bips = 0;
      Presse(cle);
      EXPECT_EQ(b.messages.bips, 1);
      EXPECT_FALSE(b.pointeur.sablier);
    }
    EXPECT_THAT(b.disque.changements(), IsEmpty());
  }
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

TEST_F(CommandesEnvoi, RevenirAuPremierChoixDUnTriLEffaceAussi) {
  OuvreSur("mnuViewVins", "frmVins", 5);
  Prend("ComboRegionVinTrier", "Touraine à part");
  Prend("ComboRegionVinTrier", "?");
  Presse("Ttx");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_FALSE(b.dossier.A("vintri.doc"));
}

TEST_F(CommandesEnvoi, UneFenetreReduiteEnvoieCeQuElleMontrait) {
  OuvreSur("mnuViewMenus", "frmMenus", 1);
  Prend("ComboMenus", "Noël");
  Sous("frmMenus").showMinimized();
  QApplication::processEvents();
  ASSERT_EQ(b.module->contexteActif, 31);
  Presse("Ttx");
  EXPECT_EQ(Corps("menu.doc"), "Menu : Noël\n\nHuîtres\nBûche\n");
}

TEST_F(CommandesEnvoi, UnDocumentQuiNeSEcritPasEstDit) {
  Ouvre();
  b.disque.EchoueSur("crée recette", Panne::permissionRefusee);
  Presse("Ttx");
  Presse("Notepad");
  std::vector<std::string> dits;
  for (const MessageVu& message : b.messages.vus) {
    EXPECT_EQ(message.icone, Icone::critique);
    dits.push_back(VersUtf8(message.texte));
  }
  EXPECT_THAT(dits, ElementsAre("Impossibilté de créer un fichier temporaire.",
                                "Impossibilité de créer un fichier temporaire."));
  EXPECT_FALSE(FinVue());
  EXPECT_FALSE(b.module->erreurFatale);
}

TEST_F(CommandesEnvoi, SansProgrammePourLuiLeDocumentReste) {
  Ouvre();
  b.association.reponse = Ouverture::aucuneAssociation;
  Choisit("mnuEditEnvoyerTtx");
  ASSERT_EQ(b.messages.vus.size(), 1U);
  EXPECT_EQ(VersUtf8(b.messages.vus[0].texte),
            "Aucune association n'est définie pour les fichiers *.DOC");
  EXPECT_EQ(b.messages.vus[0].icone, Icone::information);
  EXPECT_TRUE(b.dossier.A("recette.doc"));
}

TEST_F(CommandesEnvoi, NeTouchentAAucuneDonnee) {
  Ouvre();
  Presse("Ttx");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("supprime recette.doc", "crée recette.doc", testing::_));
}

}  // namespace
}  // namespace gastrelle::essai
