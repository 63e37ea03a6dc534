// The vintage chart is sent as its grid stands, and the grid stays so.

#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include "sortie/fenetre/EnvoiCadre.h"

namespace gastrelle::essai {
namespace {

class EnvoiMillesimes : public EnvoiCadre {
 protected:
  void OuvreMillesimes() { OuvreSur("mnuViewMillesimes", "frmMillesime", 1); }
  QTableView& grille() { return Le<QTableView>("MSFlexGrid2"); }
  void CliqueAnnee(int annee) {
    const QModelIndex place = grille().model()->index(annee - 1928, 2);
    grille().scrollTo(place);
    QTest::mouseClick(grille().viewport(), Qt::LeftButton, {}, grille().visualRect(place).center());
  }
  /// The lines of the grid as the document has them.
  std::string Lignes() {
    std::string lignes;
    const QAbstractItemModel& modele = *grille().model();
    for (int rang = 0; rang < modele.rowCount(); ++rang) {
      lignes += modele.index(rang, 0).data().toString().toStdString() + "  ";
      for (int colonne = 1; colonne <= 5; ++colonne) {
        const bool marquee = modele.index(rang, colonne).data().toString() == "x";
        lignes += marquee ? "      x       " : "              ";
      }
      lignes += '\n';
    }
    return lignes;
  }
};

TEST_F(EnvoiMillesimes, PartentCommeLaGrilleLesMontre) {
  OuvreMillesimes();
  Prend("ComboCru", "Crus des Côtes du Rhône");
  Presse("Notepad");
  const std::string corps = Corps("millesim.txt");
  EXPECT_EQ(corps,
            "Millésimes des vins : Crus des Côtes du Rhône\n\n"
            "Année Petite année  Année moyenne Bonne année   Grande année  Exceptionnel\n" +
                Lignes());
  const std::string premiere = "\n1928" + std::string(50, ' ') + 'x' + std::string(21, ' ') + '\n';
  EXPECT_NE(corps.find(premiere), std::string::npos);
}

TEST_F(EnvoiMillesimes, LaissentLaGrilleOuElleEst) {
  OuvreMillesimes();
  CliqueAnnee(1990);
  const QModelIndex courante = grille().currentIndex();
  const QModelIndexList choisies = grille().selectionModel()->selectedIndexes();
  ASSERT_EQ(choisies.size(), 5);
  const int defilement = grille().verticalScrollBar()->value();
  ASSERT_GT(defilement, 0);
  for (const char* cle : {"Ttx", "Notepad"}) {
    Presse(cle);
    EXPECT_EQ(grille().currentIndex(), courante);
    EXPECT_EQ(grille().selectionModel()->selectedIndexes(), choisies);
    EXPECT_EQ(grille().verticalScrollBar()->value(), defilement);
  }
  CliqueOnglet(Le("frmMillesime"), 3);
  EXPECT_EQ(Montre("lblMillesimeModifier"), "Millésime : 1990");
}

TEST_F(EnvoiMillesimes, LaLaissentAussiQuandLEcritureManque) {
  OuvreMillesimes();
  CliqueAnnee(1990);
  const QModelIndex courante = grille().currentIndex();
  b.disque.EchoueALaNiemeEcriture(1, Panne::disquePlein, Maniere::moitieEcrite);
  Presse("Ttx");
  EXPECT_EQ(b.messages.vus.size(), 1U);
  EXPECT_EQ(grille().currentIndex(), courante);
}

}  // namespace
}  // namespace gastrelle::essai
