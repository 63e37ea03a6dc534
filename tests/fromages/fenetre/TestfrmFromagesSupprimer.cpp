// The tab "Supprimer" of the cheeses window, through its controls.

#include "fromages/fenetre/FenetreFromages.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class SupprimerUnFromage : public FenetreFromages {
 protected:
  void AttendInfobulles(const QString& texte) {
    for (const char* nom :
         {"txtFromageSupprimer", "txtRegionSupprimer", "txtLaitSupprimer",
          "txtPremierMoisSupprimer", "txtDernierMoisSupprimer", "txtNotesSupprimer"}) {
      EXPECT_EQ(Le(nom).toolTip(), texte) << nom;
    }
  }
};

TEST_F(SupprimerUnFromage, MontreCeQuiSeraitSupprime) {
  OuvreSurAbondance(4);
  EXPECT_EQ(Champs("txtFromageSupprimer", "Supprimer"),
            (QStringList{"Abondance", "Savoie", "Vache", "Avril", "Septembre", "Dix octets"}));
}

TEST_F(SupprimerUnFromage, UnFromageAjouteSeSupprime) {
  OuvreSurAbondance(4);
  EXPECT_TRUE(Le("cmdSupprimer").isEnabled());
  EXPECT_TRUE(aLeFocus("cmdSupprimer"));
  AttendInfobulles("");
  EXPECT_EQ(Le("cmdSupprimer").toolTip(), Fr("Supprimer le fromage affiché"));
}

TEST_F(SupprimerUnFromage, LeDernierFromageDeFabriqueEstProtegeEtLeSuivantNon) {
  b.AjouteFromage(Fromage("Fromage 124"));
  Ouvre();
  Choisit(fromages(), "Fromage 123");
  CliqueOnglet(*fenetre, 4);
  EXPECT_EQ(TexteDe("txtFromageSupprimer"), "Fromage 123");
  EXPECT_FALSE(Le("cmdSupprimer").isEnabled());
  EXPECT_TRUE(aLeFocus("cmdAideSupprimer"));
  AttendInfobulles(Fr("Ce fromage ne peut être supprimé"));

  CliqueOnglet(*fenetre, 1);
  Choisit(fromages(), "Fromage 124");
  CliqueOnglet(*fenetre, 4);
  EXPECT_TRUE(Le("cmdSupprimer").isEnabled());
  AttendInfobulles("");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(SupprimerUnFromage, UnCatalogueVideNePermetRien) {
  b.dossier.Ecrit("GLF1.stp", b.dossier.Lit("GLF1.stp").substr(0, 208));
  Ouvre(4);
  EXPECT_FALSE(Le("cmdSupprimer").isEnabled());
}

TEST_F(SupprimerUnFromage, LesBoitesSeLisentMaisNeSeTapentPas) {
  OuvreSurAbondance(4);
  for (const char* nom :
       {"txtFromageSupprimer", "txtRegionSupprimer", "txtLaitSupprimer", "txtPremierMoisSupprimer",
        "txtDernierMoisSupprimer", "txtNotesSupprimer"}) {
    const QString avant = TexteDe(nom);
    Tape(Le(nom), "x");
    EXPECT_EQ(TexteDe(nom), avant) << nom;
  }
}

TEST_F(SupprimerUnFromage, SupprimeApresUneQuestionEtMontreLePremierFromage) {
  b.messages.reponses = {Reponse::oui};
  OuvreSurAbondance(4);
  Clique(Le("cmdSupprimer"));
  EXPECT_THAT(b.messages.questions,
              ElementsAre(std::string("Etes-vous sûr de vouloir supprimer ce fromage ?"_1252)));
  EXPECT_EQ(FicheFromage(b, 124).actif, 0);
  EXPECT_EQ(FicheFromage(b, 1).actif, 122);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(fromages().count(), 122);
  EXPECT_EQ(Champs("ComboFromages", ""), (QStringList{"Fromage 002", "", "Vache", "?", "?", ""}));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "122\nfromages");
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATDix octets");
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(SupprimerUnFromage, UnNonNeToucheARien) {
  b.messages.reponses = {Reponse::non};
  OuvreSurAbondance(4);
  Clique(Le("cmdSupprimer"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(onglet(), 4);
}

TEST_F(SupprimerUnFromage, UnFichierDisparuFinitLeProgramme) {
  b.messages.reponses = {Reponse::oui};
  OuvreSurAbondance(4);
  b.dossier.Supprime("GLF1.DAT");
  Clique(Le("cmdSupprimer"));
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(2));
}

TEST_F(SupprimerUnFromage, UneEcritureQuiEchoueFinitLeProgramme) {
  b.messages.reponses = {Reponse::oui};
  OuvreSurAbondance(4);
  b.disque.EchoueALaNiemeEcriture(2, Panne::disquePlein);
  Clique(Le("cmdSupprimer"));
  AttendFinFatale();
  EXPECT_EQ(FicheFromage(b, 124).actif, 0);
  EXPECT_EQ(FicheFromage(b, 1).actif, 123);
}

TEST_F(SupprimerUnFromage, LeSablierEstLaDesLePremierAppelDuDisque) {
  b.messages.reponses = {Reponse::oui};
  OuvreSurAbondance(4);
  AttendSablier([&] { Clique(Le("cmdSupprimer")); });
}

TEST_F(SupprimerUnFromage, NiLaSuppressionNiLAffichageQuiSuitNeDemandentLaReserve) {
  b.messages.reponses = {Reponse::oui};
  OuvreSurAbondance(4);
  b.dossier.Supprime("GLF2.DAT");
  Clique(Le("cmdSupprimer"));
  EXPECT_THAT(b.disque.journal(), Each(Not(HasSubstr("GLF2"))));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(onglet(), 1);
}

}  // namespace
}  // namespace gastrelle::essai
