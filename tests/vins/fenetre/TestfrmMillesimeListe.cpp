// The tab "Liste" of the vintage chart, through its controls.

#include <QHeaderView>

#include "vins/fenetre/FenetreMillesime.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListeDesMillesimes : public FenetreMillesime {
 protected:
  /// Opens on a file with these values for the red Bordeaux.
  void OuvreAvec(const std::vector<std::int16_t>& valeurs) {
    std::string octets;
    for (const std::int16_t valeur : valeurs) {
      octets += Octets(Fiche({valeur}));
    }
    b.dossier.Ecrit("GLMV.DAT", octets);
    Ouvre();
  }
  QString Accessible(int rangee, int colonne) {
    return grille().model()->index(rangee - 1, colonne).data(Qt::AccessibleTextRole).toString();
  }
};

TEST_F(ListeDesMillesimes, OffreLesNeufCrusDansLeurOrdre) {
  Ouvre();
  EXPECT_EQ(Textes(crus()), (QStringList{"Bordeaux rouges", "Bordeaux blancs", "Bourgognes rouges",
                                         "Bourgognes blancs", Fr("Crus des Côtes du Rhône"),
                                         "Alsace", "Pouilly sur Loire / Sancerre",
                                         "Anjou / Touraine / Muscadet", "Crus du Beaujolais"}));
  EXPECT_THAT(DonneesDe(crus()), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8));
  EXPECT_EQ(crus().currentIndex(), 0);
}

TEST_F(ListeDesMillesimes, LaGrilleASesEntetesEtSesAnnees) {
  Ouvre();
  const QAbstractItemModel& modele = *grille().model();
  QStringList entetes;
  for (int colonne = 0; colonne < modele.columnCount(); ++colonne) {
    entetes << modele.headerData(colonne, Qt::Horizontal).toString();
  }
  EXPECT_EQ(entetes, (QStringList{Fr("Année"), Fr("Petite année"), Fr("Année moyenne"),
                                  Fr("Bonne année"), Fr("Grande année"), "Exceptionnelle"}));
  EXPECT_EQ(modele.rowCount(), 95);
  EXPECT_EQ(Rangee(1), (QStringList{"1928", "", "", "", "", ""}));
  EXPECT_EQ(Rangee(2), (QStringList{"1929", "x", "", "", "", ""}));
  EXPECT_EQ(Rangee(6), (QStringList{"1933", "", "", "", "", "x"}));
  EXPECT_EQ(Rangee(95).front(), "2022");
}

TEST_F(ListeDesMillesimes, ChaqueCruASesMarques) {
  Ouvre();
  for (int cru = 0; cru < crus().count(); ++cru) {
    Choisit(crus(), cru);
    const std::vector<int> marques = Marques();
    for (int i = 0; i < 95; ++i) {
      EXPECT_EQ(marques[static_cast<std::size_t>(i)], (i + cru) % 6) << cru << ' ' << i;
    }
  }
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ListeDesMillesimes, LeXEstGrasEtToutEstAuMilieu) {
  Ouvre();
  const QAbstractItemModel& modele = *grille().model();
  EXPECT_TRUE(modele.index(1, 1).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(modele.index(1, 2).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(modele.index(1, 0).data(Qt::FontRole).value<QFont>().bold());
  for (int colonne = 0; colonne < 6; ++colonne) {
    EXPECT_EQ(modele.index(1, colonne).data(Qt::TextAlignmentRole).toInt(), Qt::AlignCenter);
  }
  EXPECT_EQ(grille().horizontalHeader()->defaultAlignment(), Qt::AlignCenter);
}

TEST_F(ListeDesMillesimes, UneValeurHorsDeLEchelleNeMarqueRien) {
  OuvreAvec({-1, 0, 1, 5, 6, 32767});
  EXPECT_THAT(Marques(), ElementsAre(0, 0, 1, 5, 0, 0));
}

TEST_F(ListeDesMillesimes, CommenceEn1928EnHaut) {
  Ouvre();
  EXPECT_EQ(Selection(), QStringList{"1928"});
  EXPECT_EQ(RangeeDuHaut(), 1);
  EXPECT_EQ(onglet(), 1);
  EXPECT_TRUE(aLeFocus("MSFlexGrid2"));
}

TEST_F(ListeDesMillesimes, ChoisirUneAnneeLaSelectionneJusquEnColonneCinq) {
  Ouvre();
  for (const int colonne : {0, 1, 5}) {
    CliqueAnnee(1940 + colonne, colonne);
    EXPECT_EQ(Selection(), QStringList{QString::number(1940 + colonne)}) << colonne;
  }
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(TexteDe("lblMillesimeModifier"), Fr("Millésime : 1945"));
}

TEST_F(ListeDesMillesimes, ChangerDeCruRevientEn1928) {
  Ouvre();
  CliqueAnnee(1990);
  Choisit(crus(), 5);
  EXPECT_EQ(Selection(), QStringList{"1928"});
  EXPECT_EQ(RangeeDuHaut(), 1);
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(TexteDe("lblMillesimeModifier"), Fr("Millésime : 1928"));
}

TEST_F(ListeDesMillesimes, RechoisirLeMemeCruRevientAussiEn1928) {
  Ouvre();
  CliqueAnnee(1990);
  Choisit(crus(), 0);
  EXPECT_EQ(Selection(), QStringList{"1928"});
}

TEST_F(ListeDesMillesimes, RevenirDUnAutreOngletGardeLAnneeEnVue) {
  Ouvre();
  CliqueAnnee(2000);
  CliqueOnglet(*fenetre, 3);
  fenetre->resize(800, 300);
  CliqueOnglet(*fenetre, 1);
  QApplication::processEvents();
  EXPECT_EQ(Selection(), QStringList{"2000"});
  const QRect place = grille().visualRect(grille().currentIndex());
  EXPECT_TRUE(grille().viewport()->rect().contains(place));
  EXPECT_TRUE(aLeFocus("MSFlexGrid2"));
}

TEST_F(ListeDesMillesimes, LeClavierParcourtLesAnnees) {
  OuvreActive();
  Frappe(Qt::Key_Down);
  EXPECT_EQ(Selection(), QStringList{"1929"});
  Frappe(Qt::Key_End);
  EXPECT_EQ(Selection(), QStringList{"2022"});
  Frappe(Qt::Key_Down);
  EXPECT_EQ(Selection(), QStringList{"2022"});
  Frappe(Qt::Key_Left);
  Frappe(Qt::Key_Right);
  EXPECT_EQ(Selection(), QStringList{"2022"});
  Frappe(Qt::Key_Up);
  EXPECT_EQ(Selection(), QStringList{"2021"});
  Frappe(Qt::Key_Home);
  EXPECT_EQ(Selection(), QStringList{"1928"});
  Frappe(Qt::Key_PageDown);
  EXPECT_NE(Selection(), QStringList{"1928"});
  EXPECT_EQ(Selection().size(), 1);
}

TEST_F(ListeDesMillesimes, DesChiffresMenentALeurAnnee) {
  OuvreActive();
  Frappe("1990");
  EXPECT_EQ(Selection(), QStringList{"1990"});
  const QRect place = grille().visualRect(grille().currentIndex());
  EXPECT_TRUE(grille().viewport()->rect().contains(place));
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(TexteDe("lblMillesimeModifier"), Fr("Millésime : 1990"));
}

TEST_F(ListeDesMillesimes, UneRangeeSeDitDeToutesSesCases) {
  Ouvre();
  for (int colonne = 0; colonne < 6; ++colonne) {
    EXPECT_EQ(Accessible(1, colonne), Fr("1928, Bordeaux rouges : Non classé"));
    EXPECT_EQ(Accessible(5, colonne), Fr("1932, Bordeaux rouges : Grande année"));
  }
  Choisit(crus(), 4);
  EXPECT_EQ(Accessible(2, 0), Fr("1929, Crus des Côtes du Rhône : Exceptionnelle"));
}

TEST_F(ListeDesMillesimes, UnLecteurDEcranEntendLAnneeChoisie) {
  Ouvre();
  CliqueAnnee(1932);
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&grille());
  EXPECT_EQ(table->text(QAccessible::Name), Fr("Ses millésimes"));
  ASSERT_NE(table->focusChild(), nullptr);
  EXPECT_EQ(table->focusChild()->text(QAccessible::Name),
            Fr("1932, Bordeaux rouges : Grande année"));
}

TEST_F(ListeDesMillesimes, LesColonnesOntLeurLargeurOuPlusSiLEnteteLeDemande) {
  const QFont avant = QApplication::font();
  for (const int fois : {1, 2}) {
    QFont police = avant;
    police.setPointSizeF(avant.pointSizeF() * fois);
    QApplication::setFont(police);
    fenetre.reset();
    Ouvre();
    fenetre->resize(1200, 600);
    QApplication::processEvents();
    EXPECT_GE(grille().columnWidth(0), 600 / 15);
    EXPECT_EQ(grille().columnWidth(1), grille().columnWidth(5));
    EXPECT_GE(grille().columnWidth(5), 1300 / 15);
    EXPECT_GT(grille().columnWidth(5), QFontMetrics(police).horizontalAdvance("Exceptionnelle"));
    EXPECT_GE(grille().rowHeight(0), QFontMetrics(police).height());
    EXPECT_EQ(grille().horizontalScrollBar()->maximum(), 0);
  }
  QApplication::setFont(avant);
}

TEST_F(ListeDesMillesimes, UneTuileEtroiteGardeLesAnneesEtLesDegresEnVue) {
  Ouvre();
  fenetre->resize(400, 600);
  QApplication::processEvents();
  EXPECT_EQ(grille().horizontalScrollBar()->maximum(), 0);
  EXPECT_TRUE(grille().visualRect(grille().model()->index(0, 5)).right() <=
              grille().viewport()->width());
  EXPECT_EQ(grille().model()->headerData(5, Qt::Horizontal, Qt::ToolTipRole).toString(),
            "Exceptionnelle");
}

TEST_F(ListeDesMillesimes, LInfobulleDeLaGrilleSeVoitSurSesCases) {
  Ouvre();
  EXPECT_EQ(Infobulle(*grille().viewport(), {100, 50}),
            Fr("Sélectionner une année pour modifier son classement"));
}

TEST_F(ListeDesMillesimes, LaBandeCompteLesAnneesEntieres) {
  b.dossier.Ecrit("GLMV.DAT", std::string(32'000, '\0'));
  Ouvre();
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), Fr("1777\nmillésimes"));
  EXPECT_EQ(grille().model()->rowCount(), 1777);
  EXPECT_EQ(Rangee(1777).front(), "3704");
}

TEST_F(ListeDesMillesimes, UneSeuleAnneeSAffiche) {
  OuvreAvec({4});
  EXPECT_EQ(Rangee(1), (QStringList{"1928", "", "", "", "x", ""}));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), Fr("1\nmillésimes"));
}

TEST_F(ListeDesMillesimes, LAffichageDitLeCruEtSesAnnees) {
  OuvreAvec({3, 0, 9});
  const auto vue = std::get<VueMillesimes>(fenetre->VueCourante());
  EXPECT_EQ(vue.cru, "Bordeaux rouges");
  ASSERT_EQ(vue.annees.size(), 3U);
  EXPECT_EQ(vue.annees[0].annee, 1928);
  EXPECT_EQ(vue.annees[0].degre, 3);
  EXPECT_EQ(vue.annees[2].annee, 1930);
  EXPECT_EQ(vue.annees[2].degre, 0);
  CliqueOnglet(*fenetre, 3);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(fenetre->VueCourante()));
}

TEST_F(ListeDesMillesimes, LeSablierEstLaDesLePremierAppelDuDisque) {
  Ouvre();
  AttendSablier([&] { Choisit(crus(), 2); });
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ListeDesMillesimes, UnFichierSansUneAnneeFinitLeProgrammeALOuverture) {
  for (const std::size_t octets : {0U, 17U}) {
    b.dossier.Ecrit("GLMV.DAT", std::string(octets, '\0'));
    b.messages.vus.clear();
    b.module.reset();
    b.Redemarre();
    OublieFin();
    cadre.emplace(*b.module);
    EXPECT_THROW(Cree(), FinDuProgramme);
    AttendMessage("Erreur fatale. Impossibilité de continuer.", Icone::critique);
  }
}

TEST_F(ListeDesMillesimes, LeFichierDisparuFinitLeProgramme) {
  Ouvre();
  b.dossier.Supprime("GLMV.DAT");
  ExigePointeurNormalAuxMessages();
  Choisit(crus(), 1);
  AttendFinFatale(Donnees::GLMV);
}

TEST_F(ListeDesMillesimes, LeFichierDevenuTropCourtFinitLeProgramme) {
  Ouvre();
  std::filesystem::resize_file(b.dossier.chemin() / "GLMV.DAT", 17);
  Choisit(crus(), 1);
  AttendFinFatale();
}

TEST_F(ListeDesMillesimes, UneLectureQuiEchoueFinitLeProgramme) {
  Ouvre();
  b.disque.EchoueSur("lit GLMV.DAT", Panne::entreeSortie);
  Choisit(crus(), 1);
  AttendFinFatale();
}

TEST_F(ListeDesMillesimes, LaGrilleNeSeDessinePasTantQuElleSeRefait) {
  Ouvre();
  QApplication::processEvents();
  bool dessinee = true;
  QObject::connect(grille().model(), &QAbstractItemModel::modelAboutToBeReset, &grille(),
                   [&] { dessinee = grille().updatesEnabled(); });
  Choisit(crus(), 1);
  EXPECT_FALSE(dessinee);
  EXPECT_TRUE(grille().updatesEnabled());
}

}  // namespace
}  // namespace gastrelle::essai
