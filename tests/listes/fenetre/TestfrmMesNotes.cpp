// The window of the notes: read once, kept while it is hidden, written when it is unloaded.

#include "doublures/FenetreEssai.h"
#include "listes/frmMesNotes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* fichier = "MesNotes.txt";

class MesNotes : public FenetreEssai<frmMesNotes> {
 protected:
  /// Opens the window over a file of these bytes.
  void OuvreSur(std::string_view octets) {
    b.dossier.Ecrit(fichier, octets);
    Ouvre();
  }
  QPlainTextEdit& saisie() { return Le<QPlainTextEdit>("txtSaisie"); }
  std::string Notes() { return Texte(saisie()).toStdString(); }
  std::string Fichier() const { return b.dossier.Lit(fichier); }
};

TEST_F(MesNotes, ALeTitreLaBandeEtLaBoiteQuIlFaut) {
  Ouvre();
  EXPECT_EQ(fenetre->objectName(), "frmMesNotes");
  EXPECT_EQ(fenetre->windowTitle(), "Mes notes");
  EXPECT_EQ(Texte(Le("Label1")), "Mes notes");
  EXPECT_EQ(Le("Image1").toolTip(), "Mes notes en vrac");
  EXPECT_EQ(saisie().property("maxLength").toInt(), 30'000);
  EXPECT_EQ(Le("cmdAide").toolTip(), "Aide");
}

TEST_F(MesNotes, ALeClavierDansLaBoiteDesLOuverture) {
  OuvreSur("Un\r\n");
  EXPECT_TRUE(aLeFocus("txtSaisie"));
  QTest::keyClick(fenetre->focusWidget(), Qt::Key_End, Qt::ControlModifier);
  Tape(*fenetre->focusWidget(), " de plus");
  EXPECT_EQ(Notes(), "Un de plus");
}

TEST_F(MesNotes, SansFichierSOuvreVideEtNEnFaitPas) {
  Ouvre();
  EXPECT_EQ(Notes(), "");
  EXPECT_FALSE(b.dossier.A(fichier));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(MesNotes, SeLitALOuvertureEtJamaisEnsuite) {
  OuvreSur("\r\nUn\r\nDeux\r\n\r\n");
  EXPECT_EQ(Notes(), "Un\nDeux\n");
  b.dossier.Ecrit(fichier, "Autre\r\n");
  fenetre->close();
  fenetre->show();
  fenetre->Active();
  EXPECT_EQ(Notes(), "Un\nDeux\n");
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(MesNotes, UnFichierPlusLongQueLaBoiteSeMontreEtSeGardeEntier) {
  const std::string longues = std::string(40'000, 'x') + "\r\nfin\r\n";
  OuvreSur(longues);
  EXPECT_EQ(Notes(), std::string(40'000, 'x') + "\nfin");
  Tape(saisie(), "y");  // what is full takes nothing more
  fenetre->Decharge();
  EXPECT_EQ(Fichier(), longues);
}

TEST_F(MesNotes, SeCacheParSaCroixSansRienEcrireEtGardeSonTexte) {
  OuvreSur("Un\r\n");
  Remplace(saisie(), "  Deux ");
  fenetre->close();
  EXPECT_FALSE(fenetre->isVisible());
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_THAT(cadre->quittes, ElementsAre(EntreeVue::mesNotes));
  EXPECT_EQ(Notes(), "  Deux ");
  EXPECT_EQ(Fichier(), "Un\r\n");
}

TEST_F(MesNotes, SEcritQuandLeProgrammeLaDecharge) {
  OuvreSur("Vieux\r\n");
  Remplace(saisie(), "Un\nDeux\nTrois");
  fenetre->Decharge();
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("supprime MesNotes.txt", "crée MesNotes.txt", "écrit MesNotes.txt 0+17"));
  EXPECT_EQ(Fichier(), "Un\r\nDeux\r\nTrois\r\n");
  EXPECT_THAT(cadre->quittes, ElementsAre(EntreeVue::mesNotes));
}

TEST_F(MesNotes, CacheeSEcritAussi) {
  Ouvre();
  Tape(saisie(), "Un");
  fenetre->close();
  fenetre->Decharge();
  EXPECT_EQ(Fichier(), "Un\r\n");
}

TEST_F(MesNotes, PerdLesBlancsDesDeuxBoutsDuTexteEtEuxSeuls) {
  Ouvre();
  Tape(saisie(), "   Un  \n   Deux\n\n   ");
  fenetre->Decharge();
  EXPECT_EQ(Fichier(), "Un  \r\n   Deux\r\n\r\n\r\n");
}

TEST_F(MesNotes, VideOuFaiteDeBlancsNeLaissePasDeFichier) {
  for (const char* texte : {"", "     "}) {
    OuvreSur("Vieux\r\n");
    Remplace(saisie(), texte);
    fenetre->Decharge();
    EXPECT_FALSE(b.dossier.A(fichier)) << '"' << texte << '"';
    EXPECT_THAT(b.disque.journal(), ElementsAre("supprime MesNotes.txt"));
    b.module->Place(Donnees::GLMCN).reset();
  }
}

TEST_F(MesNotes, NEcritRienUneFoisLErreurFataleVenue) {
  OuvreSur("Vieux\r\n");
  Remplace(saisie(), "Neuf");
  b.module->erreurFatale = true;
  fenetre->Decharge();
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_EQ(Fichier(), "Vieux\r\n");
}

TEST_F(MesNotes, SEnregistreEnRestantOuverteSansTroublerLaFrappe) {
  Ouvre();
  Tape(saisie(), "Un ");
  fenetre->EnregistreSaisie();
  EXPECT_EQ(Fichier(), "Un\r\n");
  EXPECT_TRUE(fenetre->isVisible());
  Tape(saisie(), "deux");
  EXPECT_EQ(Notes(), "Un deux");
}

TEST_F(MesNotes, UneLectureManqueeSeDitEtLaisseLaBoiteVide) {
  for (std::size_t n = 2; n <= 4; ++n) {
    SCOPED_TRACE(n);
    Bibliotheque autre;
    autre.dossier.Ecrit(fichier, "Vieux\r\n");
    autre.Demarre();
    CadreEssai unCadre(*autre.module);
    autre.pointeur.Sablier();
    autre.messages.pendant = [&] {
      EXPECT_FALSE(autre.pointeur.sablier);
      EXPECT_EQ(unCadre.cochee, EntreeVue::mesNotes);
    };
    autre.disque.EchoueALAppel(n, Panne::permissionRefusee);
    frmMesNotes uneFenetre(*autre.module, unCadre);
    EXPECT_THAT(autre.messages.vus,
                ElementsAre(MessageVu{ErreurExecution(Panne::permissionRefusee).what(),
                                      Icone::aucune, "Gastrelle 2005"}));
    EXPECT_EQ(Texte(Trouve(uneFenetre, "txtSaisie")), "");
    EXPECT_THAT(autre.disque.changements(), IsEmpty());
    EXPECT_FALSE(autre.module->erreurFatale);
    Tape(Trouve(uneFenetre, "txtSaisie"), "Neuf");
    uneFenetre.Decharge();
    EXPECT_EQ(autre.dossier.Lit(fichier), "Neuf\r\n");
  }
}

TEST_F(MesNotes, UnTexteQueLaBoiteNeTientPasSeDitDeMeme) {
  std::string lignes = "Un";
  for (int i = 0; i < 200'000; ++i) {
    lignes += CRLF;
  }
  OuvreSur(lignes);
  AttendMessage("Mémoire insuffisante", Icone::aucune);
  EXPECT_EQ(Notes(), "");
  EXPECT_EQ(Fichier(), lignes);
}

TEST_F(MesNotes, UneEcritureManqueeNeSeDitPas) {
  Ouvre();
  Tape(saisie(), "Un");
  b.disque.EchoueSur("crée MesNotes.txt", Panne::disquePlein);
  fenetre->Decharge();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_FALSE(FinVue());
}

TEST_F(MesNotes, MontreSonTexteAQuiLImprime) {
  OuvreSur("Un\r\nDeux\r\n");
  EXPECT_EQ(std::get<VueNotes>(fenetre->VueCourante()).texte, "Un\r\nDeux");
}

TEST_F(MesNotes, ReduiteNeChangeRienAuCadre) {
  Ouvre();
  fenetre->QuandReduite();
  EXPECT_THAT(cadre->quittes, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
