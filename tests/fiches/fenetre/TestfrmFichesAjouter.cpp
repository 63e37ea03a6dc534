// The tab "Ajouter" of the windows of menus and tips, through its controls.

#include "fiches/fenetre/FenetreFiches.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class FichesAjouter : public FenetreFiches {
 protected:
  void Saisit(const char* titre, const QString& sonTexte = {}) {
    Tape(Le(cas.titreAjouter), QString::fromUtf8(titre));
    Tape(Le(cas.texteAjouter), sonTexte);
  }
  void Valide() { Clique(Le("cmdValideAjouter")); }
  bool SaisiesVides() {
    return Texte(Le(cas.titreAjouter)).isEmpty() && Texte(Le(cas.texteAjouter)).isEmpty();
  }
};
SUR_LES_DEUX_FENETRES(FichesAjouter);

TEST_P(FichesAjouter, SOuvreVideLeFocusSurLeTitre) {
  Ouvre(2);
  Saisit("Noce", "Du vin.");
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  EXPECT_TRUE(SaisiesVides());
  EXPECT_TRUE(aLeFocus(cas.titreAjouter));
  EXPECT_EQ(cadre->contextes.back(), cas.contexteBase + 2);
}

TEST_P(FichesAjouter, EcritReserveFicheEnteteEtMontreLaFiche) {
  Ouvre(2);
  Saisit("  Noël ", " Huîtres.\nBûche. ");
  Valide();
  EXPECT_THAT(Changements(),
              ElementsAre(EcritTexte(c, 8, 16), EcritFiche(c, premiere), EcritFiche(c, 1)));
  EXPECT_EQ(Textes(b, c).substr(8), "Huîtres.\r\nBûche."_1252);
  EXPECT_EQ(Titre(premiere), "Noël"_1252);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(combo().currentText(), Fr("Noël"));
  EXPECT_EQ(combo().currentData().toInt(), premiere);
  EXPECT_EQ(Texte(texte()), Fr("Huîtres.\nBûche."));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_P(FichesAjouter, LeNombreSuit) {
  Ouvre(2);
  Saisit("Noce");
  Valide();
  EXPECT_EQ(Texte(Le("txtAnnonce(0)")), QString::number(c.dernierProtege) + cas.annonce);
}

TEST_P(FichesAjouter, LaFicheDuMemeTitreEstCelleQuiVientDEtreAjoutee) {
  Ajoute("Agape", "La première."_1252);
  Ouvre(2);
  Saisit("Agape", "La seconde.");
  Valide();
  EXPECT_EQ(combo().currentData().toInt(), premiere + 1);
  EXPECT_EQ(combo().count(), premiere);
  EXPECT_EQ(Texte(texte()), "La seconde.");
}

TEST_P(FichesAjouter, SansTexteLaReserveNEstPasEcrite) {
  Ajoute("Agape", "Du vin.");
  Ouvre(2);
  Saisit("Noce", "   ");
  Valide();
  EXPECT_THAT(Changements(), Each(Not(HasSubstr(Nom(c.textes)))));
  EXPECT_EQ(Lue(premiere + 1).posTexte, 0);
  EXPECT_EQ(Lue(premiere + 1).lgTexte, 0);
  EXPECT_EQ(Texte(texte()), "");
}

TEST_P(FichesAjouter, SansTexteEtSansReserveLaFicheSEcritEtSonAffichageFinitLeProgramme) {
  Ouvre(2);
  b.dossier.Supprime(Nom(c.textes));
  Saisit("Noce");
  Valide();
  EXPECT_THAT(Changements(), ElementsAre(EcritFiche(c, premiere), EcritFiche(c, 1)));
  AttendFinFatale();
}

TEST_P(FichesAjouter, UnTitreDeBlancsEstRefuseSansPerdreLeTexte) {
  Ouvre(2);
  Saisit("   ", " Du vin.");
  Valide();
  AttendMessage(cas.sansTitreAjouter);
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(Texte(Le(cas.titreAjouter)), "");
  EXPECT_EQ(Texte(Le(cas.texteAjouter)), " Du vin.");
  EXPECT_TRUE(aLeFocus(cas.titreAjouter));
  EXPECT_FALSE(b.pointeur.sablier);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_P(FichesAjouter, LeTitreEtLeTexteOntLeursLimites) {
  Ouvre(2);
  Saisit(std::string(130, 'x').c_str());
  EXPECT_EQ(Texte(Le(cas.titreAjouter)).size(), 128);
  EXPECT_EQ(Le(cas.texteAjouter).property("maxLength").toInt(), 30000);
}

TEST_P(FichesAjouter, LesFichesDisparuesFinissentLeProgrammeSansRienEcrire) {
  Ouvre(2);
  Saisit("Noce", "Du vin.");
  b.dossier.Supprime(Nom(c.fiches));
  Valide();
  AttendFinFatale(c.fiches);
  EXPECT_THAT(Changements(), IsEmpty());
}

TEST_P(FichesAjouter, LaReserveDisparueFinitLeProgrammeSansRienEcrire) {
  Ouvre(2);
  Saisit("Noce", "Du vin.");
  b.dossier.Supprime(Nom(c.textes));
  Valide();
  AttendFinFatale(c.textes);
  EXPECT_THAT(Changements(), IsEmpty());
}

TEST_P(FichesAjouter, UneFicheQuiNeSEcritPasLaisseSonTexteDansLaReserve) {
  Ouvre(2);
  Saisit("Noce", "Du vin.");
  b.disque.EchoueSur(EcritFiche(c, premiere), Panne::disquePlein);
  Valide();
  AttendFinFatale();
  EXPECT_EQ(Textes(b, c).substr(8), "Du vin.");
  EXPECT_EQ(Compte(b, c), c.dernierProtege - 1);
}

TEST_P(FichesAjouter, EffacerDemandeEtVideLesDeuxBoites) {
  Ouvre(2);
  Saisit("", "Du vin.");
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_THAT(b.messages.questions, ElementsAre(DepuisUtf8("Effacer la saisie : êtes-sur sûr ?")));
  EXPECT_TRUE(SaisiesVides());
  EXPECT_TRUE(aLeFocus(cas.titreAjouter));
}

TEST_P(FichesAjouter, EffacerRefuseGardeLaSaisieEtRendLeFocusAuTitre) {
  Ouvre(2);
  Saisit("Noce");
  b.messages.reponses = {Reponse::non};
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(Texte(Le(cas.titreAjouter)), "Noce");
  EXPECT_TRUE(aLeFocus(cas.titreAjouter));
}

TEST_P(FichesAjouter, EffacerNeDemandeRienQuandRienNEstSaisi) {
  Ouvre(2);
  Le(cas.texteAjouter).setFocus();
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_TRUE(aLeFocus(cas.titreAjouter));
}

TEST_P(FichesAjouter, RevenirALaFenetreVideLaSaisieSansUnMot) {
  Ouvre(2);
  Saisit("Noce", "Du vin.");
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_TRUE(SaisiesVides());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_P(FichesAjouter, LeSablierEstLaDesLePremierAppelDuDisque) {
  Ouvre(2);
  Saisit("Noce", "Du vin.");
  AttendSablier([&] { Valide(); });
}

TEST_P(FichesAjouter, UneFoisLaFicheAjouteeSonTexteALeFocus) {
  Ouvre(2);
  Saisit("Noce", "Du vin.");
  Valide();
  EXPECT_EQ(onglet(), 1);
  EXPECT_TRUE(aLeFocus(cas.texte));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_P(FichesAjouter, LePointeurEstNormalPendantLesRefus) {
  Ouvre(2);
  ExigePointeurNormalAuxMessages();
  Valide();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  Saisit("Noce", "Du vin.");
  b.dossier.Supprime(Nom(c.textes));
  Valide();
  EXPECT_THAT(b.messages.vus, SizeIs(3));
}

}  // namespace
}  // namespace gastrelle::essai
