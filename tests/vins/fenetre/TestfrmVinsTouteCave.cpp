// The tab "Ma cave" of the wines window: the report of all bottles.

#include <QFontInfo>
#include <QListView>

#include "vins/fenetre/FenetreCave.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

class TouteLaCave : public FenetreCave {
 protected:
  QTableView& rapport() { return Le<QTableView>("List1"); }
  QStringList Lignes() { return Textes(rapport()); }
  /// The report on "Abymes" alone.
  static QStringList RapportSurAbymes() {
    return {Fr("ABYMES - Région d'origine : Alpes"),
            ".. Blanc ........... 6",
            ".. Rouge ........... 2",
            "... Total .......... 8",
            " ",
            "Nombre total de bouteilles dans ma cave",
            ".. BLANC ........... 6",
            ".. ROUGE ........... 2",
            "... Total .......... 8"};
  }
  /// The program ends when the report can't be read.
  void EchoueSur(const char* appel) {
    OuvreSurAbymes();
    b.disque.EchoueSur(appel, Panne::entreeSortie);
    CliqueOnglet(*fenetre, ongletMaCave);
    AttendFinFatale();
    EXPECT_FALSE(b.pointeur.sablier);
  }
};

TEST_F(TouteLaCave, SeLitLigneParLigneDansLOrdreDesNoms) {
  b.AjouteVin(VinEnCave("Zibibbo", {1, 2, 3, 4, 5, 6, 7, 8, 9}, 3));
  b.AjouteVin(VinEnCave("élan"_1252, {0, 0, 0, 0, 0, 0, 0, 0, 40}, 2));
  OuvreSurAbymes(ongletMaCave);
  EXPECT_EQ(Lignes(), (QStringList{Fr("ABYMES - Région d'origine : Alpes"),
                                   ".. Blanc ........... 6",
                                   ".. Rouge ........... 2",
                                   "... Total .......... 8",
                                   " ",
                                   Fr("ÉLAN - Région d'origine : Région 002"),
                                   ".. Gris ............ 40",
                                   "... Total .......... 40",
                                   " ",
                                   Fr("ZIBIBBO - Région d'origine : Région 003"),
                                   ".. Blanc ........... 1",
                                   ".. Rouge ........... 2",
                                   Fr(".. Rosé ............ 3"),
                                   ".. Champagne ....... 4",
                                   ".. Vin doux naturel  5",
                                   ".. Jaune ........... 6",
                                   ".. Paille .......... 7",
                                   ".. Mousseux ........ 8",
                                   ".. Gris ............ 9",
                                   "... Total .......... 45",
                                   " ",
                                   "Nombre total de bouteilles dans ma cave",
                                   ".. BLANC ........... 7",
                                   ".. ROUGE ........... 4",
                                   Fr(".. ROSÉ ............ 3"),
                                   ".. CHAMPAGNE ....... 4",
                                   ".. VIN DOUX NATUREL  5",
                                   ".. JAUNE ........... 6",
                                   ".. PAILLE .......... 7",
                                   ".. MOUSSEUX ........ 8",
                                   ".. GRIS ............ 49",
                                   "... Total .......... 93"}));
}

TEST_F(TouteLaCave, UneCaveVideTientEnUneLigne) {
  Ouvre(ongletMaCave);
  EXPECT_EQ(Lignes(), QStringList{"Votre cave est vide !"});
  EXPECT_EQ(rapport().currentIndex().row(), 0);
}

TEST_F(TouteLaCave, UnTotalPeutDepasserCeQueTientUnNombre) {
  b.AjouteVin(VinEnCave("Aaa", {32767, 32767}));
  Ouvre(ongletMaCave);
  EXPECT_EQ(Lignes().at(3), "... Total .......... 65534");
  EXPECT_EQ(Lignes().last(), "... Total .......... 65534");
}

TEST_F(TouteLaCave, UnNombreNegatifNeCompteNiNeSeLit) {
  b.AjouteVin(VinEnCave("Aaa", {-5}));
  b.AjouteVin(VinEnCave("Bbb", {-5, 3}));
  Ouvre(ongletMaCave);
  EXPECT_EQ(Lignes(),
            (QStringList{Fr("BBB - Région d'origine : Région 002"), ".. Rouge ........... 3",
                         "... Total .......... 3", " ", "Nombre total de bouteilles dans ma cave",
                         ".. ROUGE ........... 3", "... Total .......... 3"}));
}

TEST_F(TouteLaCave, SeLitEnChasseFixeEtLesChiffresSAlignent) {
  OuvreSurAbymes(ongletMaCave);
  const QFont police = rapport().font();
  EXPECT_EQ(police.family(), "Courier New");
  EXPECT_TRUE(QFontInfo(police).fixedPitch());
  const QFontMetricsF metrique(police);
  EXPECT_EQ(metrique.horizontalAdvance(".. Vin doux naturel  "),
            metrique.horizontalAdvance("... Total .......... "));
}

TEST_F(TouteLaCave, LaPremiereLigneEstChoisieEtALeClavier) {
  OuvreSurAbymes(ongletMaCave);
  EXPECT_EQ(rapport().currentIndex().row(), 0);
  EXPECT_TRUE(rapport().selectionModel()->isSelected(rapport().model()->index(0, 0)));
  EXPECT_TRUE(aLeFocus("List1"));
}

TEST_F(TouteLaCave, LaListeCacheeRangeLesVinsAvecLeurNumero) {
  b.AjouteVin(VinEnCave("Zibibbo", {1}));
  OuvreSurAbymes(ongletMaCave);
  const auto& cachee = Le<QAbstractItemView>("List2");
  EXPECT_TRUE(cachee.isHidden());
  EXPECT_EQ(Textes(cachee), (QStringList{"Abymes", "Zibibbo"}));
  EXPECT_EQ(cachee.model()->index(0, 0).data(Qt::UserRole).toInt(), 566);
  EXPECT_EQ(cachee.model()->index(1, 0).data(Qt::UserRole).toInt(), 565);
}

TEST_F(TouteLaCave, UnVinQueLaListeTientDeuxFoisYEstUneFois) {
  OuvreSurAbymes(2);
  Clique(Le("Option1(1)"));
  Tape(Le("txtSaisieNomVin"), "Neuf");
  Clique(Le("cmdValideAjouter"));
  ASSERT_EQ(vins().findText("Abymes"), 0);
  ASSERT_EQ(vins().itemText(1), "Abymes");
  CliqueOnglet(*fenetre, ongletMaCave);
  EXPECT_EQ(Lignes(), RapportSurAbymes());
}

TEST_F(TouteLaCave, UnVinSupprimeNYEstPlus) {
  b.AjouteVin(VinEnCave("Aaa", {7}, b.AjouteRegion("Alpes")));
  OuvreSurAbymes(4);
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdValideSupprimer"));
  CliqueOnglet(*fenetre, ongletMaCave);
  EXPECT_THAT(Lignes(), Not(Contains(Fr("AAA - Région d'origine : Alpes"))));
  EXPECT_EQ(Lignes().size(), 9);
}

TEST_F(TouteLaCave, SeRefaitAChaqueAffichageEtAChaqueRetourALaFenetre) {
  OuvreSurAbymes(ongletMaCave);
  ASSERT_EQ(Lignes(), RapportSurAbymes());
  const auto poseBlanc = [&](std::int16_t nombre) {
    RecVin vin = FicheVin(b, 565);
    vin.nbBlanc = nombre;
    std::string octets = b.dossier.Lit("GLV2.DAT");
    b.dossier.Ecrit("GLV2.DAT", octets.replace(564 * 104, 104, Octets(vin)));
  };
  poseBlanc(9);
  AttendSablier([&] {
    fenetre->Desactive();
    fenetre->Active();
  });
  EXPECT_EQ(Lignes().at(1), ".. Blanc ........... 9");
  EXPECT_EQ(Lignes().size(), 9);
  poseBlanc(12);
  CliqueOnglet(*fenetre, 1);
  AttendSablier([&] { CliqueOnglet(*fenetre, ongletMaCave); });
  EXPECT_EQ(Lignes().at(1), ".. Blanc ........... 12");
}

TEST_F(TouteLaCave, CeQueLOnVientDeValiderYEst) {
  OuvreCave();
  Remplace(blanc(), "20");
  Valide();
  CliqueOnglet(*fenetre, ongletMaCave);
  EXPECT_EQ(Lignes().at(1), ".. Blanc ........... 20");
}

TEST_F(TouteLaCave, LaisseLeVinAfficheDansLaFicheCourante) {
  b.AjouteVin(VinEnCave("Zibibbo", {1}));
  OuvreSurAbymes(ongletMaCave);
  EXPECT_EQ(Octets(b.module->bufVin.courant()), Octets(FicheVin(b, 566)));
  EXPECT_EQ(Rogne(b.module->bufVin.courant().nomVin.brut()), "Abymes");
}

TEST_F(TouteLaCave, UnFichierDisparuFinitLeProgramme) {
  OuvreSurAbymes();
  b.dossier.Supprime("GLV2.DAT");
  CliqueOnglet(*fenetre, ongletMaCave);
  AttendFinFatale(Donnees::GLV2);
}

TEST_F(TouteLaCave, UnVinIllisibleFinitLeProgramme) {
  EchoueSur("lit GLV2.DAT");
}

TEST_F(TouteLaCave, UneRegionIllisibleFinitLeProgramme) {
  EchoueSur("lit GLV1.DAT");
}

TEST_F(TouteLaCave, UnCompteTropGrandNEstPasRepare) {
  OuvreSurAbymes();
  b.module->bufVin.nbActifs() = 600;
  CliqueOnglet(*fenetre, ongletMaCave);
  EXPECT_EQ(Lignes(), RapportSurAbymes());
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(b.module->bufVin.nbActifs(), 600);
}

TEST_F(TouteLaCave, UnCompteTropPetitArreteLaLecture) {
  OuvreSurAbymes();
  b.module->bufVin.nbActifs() = 100;
  CliqueOnglet(*fenetre, ongletMaCave);
  EXPECT_EQ(Lignes(), QStringList{"Votre cave est vide !"});
  EXPECT_FALSE(FinVue());
}

TEST_F(TouteLaCave, SeDonneAQuiLaRegardeDeLExterieur) {
  OuvreSurAbymes(ongletMaCave);
  const auto lignes = std::get<VueCave>(fenetre->VueCourante()).lignes;
  ASSERT_EQ(lignes.size(), 9U);
  EXPECT_EQ(lignes.front(), DepuisUtf8("ABYMES - Région d'origine : Alpes"));
  EXPECT_EQ(lignes.back(), "... Total .......... 8");
}

}  // namespace
}  // namespace gastrelle::essai
