// The tab "Ajouter" of the wines window: a new wine, and the list that it leaves.

#include <algorithm>
#include <array>

#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::array boites{"txtSaisieRegion", "txtSaisieNomVin", "txtSaisieNoteAjouter"};

class AjouterUnVin : public FenetreVins {
 protected:
  QComboBox& regions() { return Le<QComboBox>("ComboRegionVinAjouter"); }
  void Valide() { Clique(Le("cmdValideAjouter")); }
  void Ajoute(const QString& nom, const QString& notes = {}) {
    Tape(Le("txtSaisieNomVin"), nom);
    Tape(Le("txtSaisieNoteAjouter"), notes);
    Valide();
  }
  /// The same from the first tab.
  void RevientAjouter(const QString& nom) {
    CliqueOnglet(*fenetre, 2);
    Ajoute(nom);
  }
  /// How many entries of the list bear a record number.
  long Entrees(int numero) {
    const std::vector<int> donnees = DonneesDe(vins());
    return std::count(donnees.begin(), donnees.end(), numero);
  }
};

TEST_F(AjouterUnVin, EnregistreToutEtMontreLeNouveauVin) {
  OuvreSurAbymes(2);
  Tape(Le("txtSaisieNomVin"), "  Chignin ");
  Choisit(regions(), Fr("Région 003"));
  Tape(Le("txtSaisieNoteAjouter"), Fr(" Jacquère.\nVif. "));
  Valide();

  AttendLaListe();
  EXPECT_EQ(numeroAffiche(), 566);
  EXPECT_EQ(vinAffiche(), (QStringList{"Chignin", Fr("Région 003"), Fr("Jacquère.\nVif.")}));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "565\ncrus");
  RecVin attendu = Vin("Chignin", 3);
  attendu.actif = -1;
  attendu.posTexte = 27;
  attendu.lgTexte = 15;
  attendu.lgNotesCave = 8;  // that of "Abymes"
  EXPECT_EQ(Octets(FicheVin(b, 566)), Octets(attendu));
  EXPECT_EQ(FicheVin(b, 1).actif, 565);
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.Jacquère.\r\nVif."_1252);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(AjouterUnVin, EcritLaReserveLaFicheLEntetePuisReliTousLesVins) {
  OuvreSurAbymes(2);
  Choisit(regions(), Fr("Région 003"));
  b.disque.OublieJournal();
  Ajoute("Chignin", "Vif");
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLV2.DAT", "existe GLV3.DAT", "longueur GLV3.DAT", EcritTexte(27, 3),
                  "longueur GLV2.DAT", EcritVin(566), EcritVin(1), "longueur GLV2.DAT",
                  ParcourtVins(566), "existe GLV2.DAT", "existe GLV1.DAT", LitVin(566),
                  LitRegion(3), "existe GLV3.DAT", "longueur GLV3.DAT", LitTexte(27, 3)));
}

TEST_F(AjouterUnVin, LaLongueurDesNotesDeCaveVientDuDernierVinLu) {
  AjouteAbymes(b);
  b.AjouteVin(Vin("Ultime"), "", "Au fond");
  Ouvre(5);
  Choisit(Le<QComboBox>("ComboRegionVinTrier"), Fr("Région 009"));
  RevientAjouter("Chignin");
  EXPECT_EQ(FicheVin(b, 567).lgNotesCave, 7);
  EXPECT_EQ(FicheVin(b, 567).posNotesCave, 0);
}

TEST_F(AjouterUnVin, SansNotesLaReferenceEstVideEtLaReserveNEstPasCherchee) {
  OuvreSurAbymes(2);
  b.dossier.Supprime("GLV3.DAT");
  Ajoute("Chignin", "  ");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritVin(566), EcritVin(1)));
  EXPECT_EQ(FicheVin(b, 566).posTexte, 0);
  EXPECT_EQ(FicheVin(b, 566).lgTexte, 0);
  EXPECT_EQ(vinAffiche(), (QStringList{"Chignin", "Alpes", ""}));
}

TEST_F(AjouterUnVin, UnNomVideEstDitSansBip) {
  OuvreSurAbymes(2);
  Tape(Le("txtSaisieNoteAjouter"), " Vif ");
  b.disque.OublieJournal();
  ExigePointeurNormalAuxMessages();
  Tape(Le("txtSaisieNomVin"), "   ");
  Le("txtSaisieNoteAjouter").setFocus();
  Valide();
  AttendMessage("Il faut donner un nom au nouveau vin.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(TexteDe("txtSaisieNomVin"), "");
  EXPECT_EQ(TexteDe("txtSaisieNoteAjouter"), " Vif ");
  EXPECT_TRUE(aLeFocus("txtSaisieNomVin"));
  AttendRienDeFait(2);
}

TEST_F(AjouterUnVin, LeMemeNomSAjouteDeuxFois) {
  OuvreSurAbymes(2);
  Ajoute("ABYMES");
  RevientAjouter("ABYMES");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(NomVin(b, 566), "ABYMES");
  EXPECT_EQ(NomVin(b, 567), "ABYMES");
  EXPECT_EQ(numeroAffiche(), 567);
  Rouvre();
  EXPECT_EQ(Textes(vins()).mid(0, 4), (QStringList{"Abymes", "ABYMES", "ABYMES", "Vin 002"}));
  EXPECT_EQ(vins().itemData(1).toInt(), 566);
  EXPECT_EQ(vins().itemData(2).toInt(), 567);
}

TEST_F(AjouterUnVin, LaListeTientEnsuiteChaqueVinUneFoisDePlus) {
  OuvreSurAbymes(2);
  Ajoute("Chignin");
  EXPECT_EQ(vins().count(), 564 + 565);
  EXPECT_EQ(Entrees(565), 2);
  EXPECT_EQ(Entrees(2), 2);
  EXPECT_EQ(Entrees(566), 1);
  EXPECT_EQ(Textes(vins()).mid(0, 5),
            (QStringList{"Abymes", "Abymes", "Chignin", "Vin 002", "Vin 002"}));

  RevientAjouter("Apremont");
  EXPECT_EQ(vins().count(), 564 + 565 + 566);
  EXPECT_EQ(Entrees(565), 3);
  EXPECT_EQ(Entrees(566), 2);
  EXPECT_EQ(numeroAffiche(), 567);
  EXPECT_EQ(vins().currentIndex(), 3);
}

TEST_F(AjouterUnVin, LesDeuxEntreesDUnVinMontrentLeMeme) {
  OuvreSurAbymes(2);
  Ajoute("Chignin");
  for (const int entree : {1, 0}) {
    Choisit(vins(), entree);
    EXPECT_EQ(vinAffiche(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
  }
}

TEST_F(AjouterUnVin, LeNombreDeCrusNeCompteQueLesFiches) {
  OuvreEtParcourt();
  RevientAjouter("Chignin");
  for (int page = 0; page < 7; ++page) {
    EXPECT_EQ(TexteDe(("txtAnnonce(" + std::to_string(page) + ")").c_str()), "564\ncrus");
  }
}

TEST_F(AjouterUnVin, RouvrirLaFenetreDedoubleLaListe) {
  OuvreSurAbymes(2);
  Ajoute("Chignin");
  Rouvre();
  EXPECT_EQ(vins().count(), 565);
  EXPECT_EQ(Entrees(565), 1);
}

TEST_F(AjouterUnVin, UneRegionAjouteeLaisseLaListeDoublee) {
  OuvreSurAbymes(2);
  Ajoute("Chignin");
  CliqueOnglet(*fenetre, 2);
  Clique(Le("Option1(0)"));
  Tape(Le("txtSaisieRegion"), "Jura");
  Valide();
  EXPECT_EQ(vins().count(), 564 + 565);
}

TEST_F(AjouterUnVin, UnCompteTropHautEstRepareALaRelecture) {
  OuvreSurAbymes(2);
  b.module->bufVin.nbActifs() = 700;
  Ajoute("Chignin");
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritVin(566), EcritVin(1), EcritVin(1)));
  EXPECT_EQ(FicheVin(b, 1).actif, 565);
}

TEST_F(AjouterUnVin, UnVinQueLaRelectureNAtteintPasFinitLeProgramme) {
  OuvreSurAbymes(2);
  b.module->bufVin.nbActifs() = 100;
  Ajoute("Chignin");
  AttendFinFatale();
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(NomVin(b, 566), "Chignin");
  EXPECT_EQ(FicheVin(b, 1).actif, 101);
}

TEST_F(AjouterUnVin, SansRegionAucunVinNeSAjoute) {
  b.dossier.Ecrit("GLV1.stp", b.dossier.Lit("GLV1.stp").substr(0, 66));
  Ouvre(2);
  Ajoute("Chignin");
  AttendFinFatale();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(AjouterUnVin, LeFichierDesVinsEstChercheAvantLaReserve) {
  OuvreSurAbymes(2);
  b.dossier.Supprime("GLV2.DAT");
  b.dossier.Supprime("GLV3.DAT");
  Ajoute("Chignin", "Vif");
  AttendFinFatale(Donnees::GLV2);
  EXPECT_EQ(onglet(), 2);
}

TEST_F(AjouterUnVin, LaReserveDisparueFinitLeProgrammeAvantTouteEcriture) {
  OuvreSurAbymes(2);
  b.dossier.Supprime("GLV3.DAT");
  ExigePointeurNormalAuxMessages();
  Ajoute("Chignin", "Vif");
  AttendFinFatale(Donnees::GLV3);
}

TEST_F(AjouterUnVin, FinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      3, 2, PrepareAbymes,
      [](QWidget& uneFenetre) {
        Tape(Trouve(uneFenetre, "txtSaisieNomVin"), "Chignin");
        Tape(Trouve(uneFenetre, "txtSaisieNoteAjouter"), "Vif");
        Clique(Trouve(uneFenetre, "cmdValideAjouter"));
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(autre.dossier.Lit("GLV3.DAT").size(), n > 1 ? 29U : 26U);
        EXPECT_EQ(autre.dossier.Lit("GLV2.DAT").size(), (n > 2 ? 566U : 565U) * 104U);
        EXPECT_EQ(FicheVin(autre, 1).actif, 564);
      });
}

TEST_F(AjouterUnVin, SoixanteDixLettresSeTapentEtSoixanteQuatreRestent) {
  OuvreSurAbymes(2);
  Tape(Le("txtSaisieNomVin"), QString(70, 'a'));
  EXPECT_EQ(TexteDe("txtSaisieNomVin"), QString(70, 'a'));
  Valide();
  EXPECT_EQ(NomVin(b, 566), std::string(64, 'a'));
  EXPECT_EQ(FicheVin(b, 566).idRegion, 29);
  EXPECT_EQ(vins().currentText(), QString(64, 'a'));
}

TEST_F(AjouterUnVin, LesBoitesOntLeursLimites) {
  Ouvre(2);
  EXPECT_EQ(Le<QLineEdit>("txtSaisieNomVin").maxLength(), 128);
  EXPECT_EQ(Le("txtSaisieNoteAjouter").property("maxLength").toInt(), 30000);
}

TEST_F(AjouterUnVin, EffacerDemandeDesQuUneBoiteTientUnTexte) {
  for (const char* boite : boites) {
    SCOPED_TRACE(boite);
    b.messages.questions.clear();
    b.messages.reponses = {Reponse::oui};
    Ouvre(2);
    const bool deRegion = boite == boites[0];
    Clique(Le(deRegion ? "Option1(0)" : "Option1(1)"));
    if (!deRegion) {
      Choisit(regions(), 3);
    }
    Tape(Le(boite), " ");
    Clique(Le("cmdEffacerAjouter"));
    EXPECT_THAT(b.messages.questions,
                ElementsAre(std::string("Effacer la saisie : êtes-sur sûr ?"_1252)));
    EXPECT_EQ(b.messages.choix, Choix::ouiNon);
    EXPECT_EQ(TexteDe(boite), "");
    EXPECT_EQ(regions().currentIndex(), 0);
    EXPECT_TRUE(aLeFocus(deRegion ? "txtSaisieRegion" : "txtSaisieNomVin"));
  }
}

TEST_F(AjouterUnVin, UnRefusDEffacerGardeToutEtRendLeFocus) {
  Ouvre(2);
  Tape(Le("txtSaisieNomVin"), "Chignin");
  Tape(Le("txtSaisieNoteAjouter"), "Vif");
  Choisit(regions(), 3);
  b.messages.reponses = {Reponse::non};
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(TextesDe({"txtSaisieNomVin", "txtSaisieNoteAjouter"}), (QStringList{"Chignin", "Vif"}));
  EXPECT_EQ(regions().currentIndex(), 3);
  EXPECT_TRUE(aLeFocus("txtSaisieNomVin"));

  Clique(Le("Option1(0)"));
  Tape(Le("txtSaisieRegion"), "Jura");
  b.messages.reponses = {Reponse::non};
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(TexteDe("txtSaisieRegion"), "Jura");
  EXPECT_TRUE(aLeFocus("txtSaisieRegion"));
}

TEST_F(AjouterUnVin, LaRegionSeuleRevientSansQuestion) {
  Ouvre(2);
  Choisit(regions(), 3);
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(regions().currentIndex(), 0);
  EXPECT_TRUE(aLeFocus("txtSaisieNomVin"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(AjouterUnVin, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurAbymes(2);
  AttendSablier([&] { Ajoute("Chignin"); });
}

}  // namespace
}  // namespace gastrelle::essai
