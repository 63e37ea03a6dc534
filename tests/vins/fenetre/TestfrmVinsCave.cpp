// The tab "Mes vins" of the wines window: what it shows of a wine's cellar, and what it writes.

#include "controles/Etiquette.h"
#include "vins/fenetre/FenetreCave.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LaCaveDUnVin : public FenetreCave {
 protected:
  /// Record 565, "Abymes", as it was opened, with other bottles and another cellar note.
  static RecVin Abymes(const Bouteilles& bouteilles, std::int32_t position, std::int32_t longueur) {
    RecVin vin = VinEnCave("Abymes", bouteilles, 29);
    vin.actif = vivant;
    vin.posTexte = 9;
    vin.lgTexte = 10;
    vin.posNotesCave = position;
    vin.lgNotesCave = longueur;
    return vin;
  }
  void AttendFiche(const RecVin& attendue) {
    EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(attendue));
  }
  std::string Reserve() { return b.dossier.Lit("GLV3.DAT"); }
  void Note(const QString& texte) {
    notes().setFocus();
    Remplace(notes(), texte);
  }
  /// The bottles and the note are those on file, the whites in focus.
  void AttendAbymes() {
    EXPECT_EQ(TexteDe("txtVinCave"), "Abymes");
    EXPECT_EQ(TexteDe("txtRegionCave"), "Alpes");
    EXPECT_EQ(Nombres(), (QStringList{"6", "2", "0", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(TexteDe("txtNotesCave"), "En haut.");
    AttendChoisie(blanc());
    EXPECT_EQ(onglet(), ongletMesVins);
    EXPECT_THAT(b.disque.journal(), IsEmpty());
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_THAT(b.messages.questions, IsEmpty());
  }
  /// Changes bottles and note while the n-th write fails: the program ends on this tab.
  void EchoueALEcriture(std::size_t n) {
    Remplace(blanc(), "9");
    Note("Bas");
    b.disque.EchoueALaNiemeEcriture(n, Panne::disquePlein);
    Valide();
    AttendFinFatale();
    EXPECT_EQ(onglet(), ongletMesVins);
    AttendFiche(Abymes({6, 2}, 19, 8));
    EXPECT_FALSE(b.pointeur.sablier);
  }
};

TEST_F(LaCaveDUnVin, SeMontreEnEntrantSansLireDeFichier) {
  OuvreSurAbymes();
  RendActive();
  CliqueOnglet(*fenetre, ongletMesVins);
  AttendAbymes();
}

TEST_F(LaCaveDUnVin, UnVinSansBouteilleMontreNeufZeros) {
  Ouvre(ongletMesVins);
  EXPECT_EQ(Nombres(), QStringList(9, "0"));
  EXPECT_EQ(TexteDe("txtNotesCave"), "");
}

TEST_F(LaCaveDUnVin, LesBoitesOntLeursLimitesEtLeNomNeSEcritPas) {
  OuvreCave();
  EXPECT_EQ(notes().property("maxLength").toInt(), 30000);
  EXPECT_TRUE(Le<QLineEdit>("txtVinCave").isReadOnly());
  EXPECT_TRUE(Le<QLineEdit>("txtRegionCave").isReadOnly());
  Tape(Le("txtVinCave"), "x");
  EXPECT_EQ(TexteDe("txtVinCave"), "Abymes");
}

TEST_F(LaCaveDUnVin, RevenirALaFenetreOublieLaSaisieSansLireDeFichier) {
  OuvreCave();
  Remplace(blanc(), "99");
  Note("Ailleurs");
  fenetre->Desactive();
  fenetre->Active();
  AttendAbymes();
}

TEST_F(LaCaveDUnVin, PasserParUnAutreOngletOublieLaSaisie) {
  OuvreCave();
  Remplace(blanc(), "99");
  CliqueOnglet(*fenetre, 2);
  CliqueOnglet(*fenetre, ongletMesVins);
  AttendAbymes();
}

TEST_F(LaCaveDUnVin, ReinitialiserRemontreCeQuiEstEnregistreSansQuestion) {
  OuvreCave();
  Remplace(blanc(), "99");
  Note("Ailleurs");
  Clique(Le("cmdEffacerCave"));
  AttendAbymes();
}

TEST_F(LaCaveDUnVin, ReinitialiserAuClavierChoisitAussiLaPremiereBoite) {
  OuvreCave();
  Remplace(blanc(), "99");
  Frappe(Qt::Key_I, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([&] { return blanc().text() == "6"; }));
  AttendAbymes();
}

TEST_F(LaCaveDUnVin, ValiderEcritLaReservePuisLaFicheEtRienDAutre) {
  OuvreCave();
  for (const char* nombre : {"1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
    Frappe(nombre);
    Frappe(Qt::Key_Tab);
  }
  Note("  Casier du bas.  ");
  b.disque.OublieJournal();
  Valide();
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV2.DAT", "existe GLV3.DAT", "longueur GLV3.DAT",
                          "écrit GLV3.DAT 26+14", "écrit GLV2.DAT 58656+104"));
  AttendFiche(Abymes({1, 2, 3, 4, 5, 6, 7, 8, 9}, 27, 14));
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEn haut.Casier du bas.");
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(QApplication::focusWidget(), &vins());
  EXPECT_EQ(vins().currentText(), "Abymes");
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(LaCaveDUnVin, UneNoteInchangeeNeSEcritPas) {
  OuvreCave();
  Remplace(blanc(), "12");
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLV2.DAT 58656+104"));
  AttendFiche(Abymes({12, 2}, 19, 8));
}

TEST_F(LaCaveDUnVin, UneNoteInchangeeNeSEcritPasQuelleQueSoitSaLongueur) {
  b.AjouteVin(VinEnCave("Aaa", {1}), {}, std::string(40000, 'x'));
  Ouvre(ongletMesVins);
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLV2.DAT 58656+104"));
  EXPECT_EQ(FicheVin(b, 565).lgNotesCave, 40000);
}

TEST_F(LaCaveDUnVin, UneNoteInchangeeNeSEcritPasQuelsQueSoientSesOctets) {
  for (const std::string_view octets :
       {std::string_view("a\nb"), std::string_view("a\rb\r\nc"), std::string_view("\r\n\t\x85"),
        std::string_view("a\0b", 3), std::string_view("\0\0\0", 3), std::string_view("\x81\xA0"),
        std::string_view("\x0B\x0C\x1C\x1D\x1E\x1F"), std::string_view("\n\r\r\n\n")}) {
    SCOPED_TRACE(VersUtf8(octets));
    const auto numero = b.AjouteVin(VinEnCave("Aaa", {1}), {}, std::string(octets));
    Ouvre(ongletMesVins);
    CliqueOnglet(*fenetre, 1);
    for (int i = 0; i < vins().count(); ++i) {
      if (vins().itemData(i).toInt() == static_cast<int>(numero)) {
        Choisit(vins(), i);
      }
    }
    CliqueOnglet(*fenetre, ongletMesVins);
    b.disque.OublieJournal();
    Valide();
    EXPECT_EQ(b.disque.changements().size(), 1U);
    EXPECT_EQ(FicheVin(b, static_cast<std::size_t>(numero)).lgNotesCave, std::ssize(octets));
  }
}

TEST_F(LaCaveDUnVin, UneNotePlusCourteResteASaPlace) {
  OuvreCave();
  Note("Bas");
  Valide();
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsBashaut.");
  AttendFiche(Abymes({6, 2}, 19, 3));
}

TEST_F(LaCaveDUnVin, UneNoteDeMemeLongueurResteASaPlaceEtLaCasseCompte) {
  OuvreCave();
  Note("EN HAUT.");
  Valide();
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLV3.DAT 18+8", "écrit GLV2.DAT 58656+104"));
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEN HAUT.");
  AttendFiche(Abymes({6, 2}, 19, 8));
}

TEST_F(LaCaveDUnVin, UneNoteVideePerdSaReferenceEtResteDansLaReserve) {
  OuvreCave();
  Note("   ");
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLV2.DAT 58656+104"));
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEn haut.");
  AttendFiche(Abymes({6, 2}, 0, 0));
}

TEST_F(LaCaveDUnVin, LaNoteEnregistreeEstCelleDeLaProchaineFois) {
  OuvreCave();
  Note("Casier du bas.");
  Valide();
  CliqueOnglet(*fenetre, ongletMesVins);
  EXPECT_EQ(TexteDe("txtNotesCave"), "Casier du bas.");
  b.disque.OublieJournal();
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLV2.DAT 58656+104"));
  Choisit(vins(), 1);
  Choisit(vins(), 0);
  CliqueOnglet(*fenetre, ongletMesVins);
  EXPECT_EQ(TexteDe("txtNotesCave"), "Casier du bas.");
}

TEST_F(LaCaveDUnVin, LaPremiereNoteDUnVinDeFabriqueVaAuBoutDeLaReserve) {
  OuvreCave();
  CliqueOnglet(*fenetre, 1);
  Choisit(vins(), 1);
  CliqueOnglet(*fenetre, ongletMesVins);
  Note("X");
  Valide();
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEn haut.X");
  EXPECT_EQ(FicheVin(b, 2).posNotesCave, 27);
  EXPECT_EQ(FicheVin(b, 2).lgNotesCave, 1);
}

TEST_F(LaCaveDUnVin, CtrlEntreeValideDepuisUneBoiteEtDepuisLaNote) {
  OuvreCave();
  Remplace(blanc(), " 7 ");
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(FicheVin(b, 565).nbBlanc, 7);
  CliqueOnglet(*fenetre, ongletMesVins);
  Note("Bas");
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(FicheVin(b, 565).lgNotesCave, 3);
}

TEST_F(LaCaveDUnVin, UneBoiteVideeValideeParLeClavierVautZero) {
  OuvreCave();
  Remplace(blanc(), "");
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  AttendFiche(Abymes({0, 2}, 19, 8));
}

TEST_F(LaCaveDUnVin, UneNoteQuiNeSEcritPasFinitLeProgrammeAvantLaFiche) {
  OuvreCave();
  EchoueALEcriture(1);
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEn haut.");
}

TEST_F(LaCaveDUnVin, UneFicheQuiNeSEcritPasFinitLeProgrammeApresLaNote) {
  OuvreCave();
  EchoueALEcriture(2);
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsBashaut.");
}

TEST_F(LaCaveDUnVin, UnFichierDisparuFinitLeProgrammeSansRienEcrire) {
  OuvreCave();
  b.dossier.Supprime("GLV2.DAT");
  Valide();
  AttendFinFatale(Donnees::GLV2);
}

TEST_F(LaCaveDUnVin, LaReserveDisparueFinitLeProgrammeMemeSansNoteChangee) {
  OuvreCave();
  b.dossier.Supprime("GLV3.DAT");
  Valide();
  AttendFinFatale(Donnees::GLV3);
}

TEST_F(LaCaveDUnVin, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreCave();
  AttendSablier([&] { Valide(); });
}

TEST_F(LaCaveDUnVin, LesNeufBoitesSAlignentEntreEllesEtSousLeNom) {
  OuvreCave();
  const auto gauche = [&](const char* nom) { return Le(nom).mapTo(fenetre.get(), QPoint()).x(); };
  EXPECT_EQ(gauche("txtSaisieBlanc"), gauche("txtVinCave"));
  EXPECT_EQ(gauche("txtSaisieChampagne"), gauche("txtVinCave"));
  EXPECT_EQ(gauche("txtSaisiePaille"), gauche("txtVinCave"));
  EXPECT_EQ(gauche("txtSaisieVDN"), gauche("txtSaisieRouge"));
  EXPECT_EQ(gauche("txtSaisieMousseux"), gauche("txtSaisieRouge"));
  EXPECT_EQ(gauche("txtSaisieJaune"), gauche("txtSaisieRose"));
  EXPECT_EQ(gauche("txtSaisieGris"), gauche("txtSaisieRose"));
}

TEST_F(LaCaveDUnVin, AucuneLegendeNEstCoupeeDansUnePetiteTuile) {
  OuvreCave();
  fenetre->resize(560, 300);
  QApplication::processEvents();
  for (const auto* legende : Le("Frame1(6)").findChildren<QLabel*>()) {
    const auto* etiquette = dynamic_cast<const Etiquette*>(legende);
    if (etiquette != nullptr && etiquette->buddy() != nullptr) {
      EXPECT_FALSE(etiquette->EstAbregee()) << etiquette->text().toStdString();
    }
  }
}

TEST_F(LaCaveDUnVin, SeDonneAQuiLaRegardeDeLExterieur) {
  OuvreCave();
  Remplace(rouge(), "12");
  const auto vue = std::get<VueCaveDuVin>(fenetre->VueCourante());
  EXPECT_EQ(vue.nom, "Abymes");
  EXPECT_EQ(vue.region, "Alpes");
  EXPECT_THAT(vue.bouteilles, ElementsAre("6", "12", "0", "0", "0", "0", "0", "0", "0"));
  EXPECT_EQ(vue.notes, "En haut.");
}

}  // namespace
}  // namespace gastrelle::essai
