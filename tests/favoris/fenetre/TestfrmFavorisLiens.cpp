// The e-mail and web boxes of the favourites' window: when they can be clicked, and what the system
// is then asked to open.

#include "favoris/fenetre/FenetreFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LiensDesFavoris : public FenetreFavoris {
 protected:
  /// Opens on a favourite, the first of the list, with these two texts.
  void OuvreSur(std::string_view email, std::string_view siteWeb) {
    RecFavori favori = Favori("Affineur");
    favori.email = email;
    favori.siteWeb = siteWeb;
    b.AjouteFavori(favori);
    Ouvre();
  }
  void AttendArmee(const char* nom, const char* infobulle) {
    EXPECT_EQ(Le(nom).cursor().shape(), Qt::PointingHandCursor) << nom;
    EXPECT_EQ(Le(nom).toolTip(), Fr(infobulle)) << nom;
  }
  void AttendOrdinaire(const char* nom) {
    EXPECT_EQ(Le(nom).cursor().shape(), Le("txtTelephone").cursor().shape()) << nom;
    EXPECT_EQ(Le(nom).toolTip(), "") << nom;
    EXPECT_EQ(TexteDe(nom), "") << nom;
  }
  void AttendEmailArme() { AttendArmee("txtEmail", "Cliquez pour écrire un e-mail"); }
  void AttendSiteArme() { AttendArmee("txtWeb", "Cliquez pour établir une connexion"); }
};

TEST_F(LiensDesFavoris, SontArmesAvecUnTexte) {
  OuvreSur("a@b.fr", "b.fr");
  AttendEmailArme();
  AttendSiteArme();
}

TEST_F(LiensDesFavoris, SArmentChacunPourSoi) {
  OuvreSur("a@b.fr", "");
  AttendEmailArme();
  AttendOrdinaire("txtWeb");
}

TEST_F(LiensDesFavoris, SArmentEtSeDesarmentDeFavoriEnFavori) {
  OuvreSurAffineur();
  AttendEmailArme();
  Choisit(favoris(), 1);
  AttendOrdinaire("txtEmail");
  AttendOrdinaire("txtWeb");
  Choisit(favoris(), 0);
  AttendEmailArme();
  AttendSiteArme();
}

TEST_F(LiensDesFavoris, UnClicOuvreLeCourrierOuLeSite) {
  OuvreSurAffineur();
  Clique(Le("txtEmail"));
  Clique(Le("txtWeb"));
  EXPECT_THAT(b.association.cibles,
              ElementsAre("mailto:affineur@exemple.fr", "https://exemple.fr"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  AttendRienDeFait(1);
}

TEST_F(LiensDesFavoris, LeSiteSePasseTelQuelSansSchema) {
  OuvreSur("", "exemple.fr/fromages affinés"_1252);
  Clique(Le("txtWeb"));
  EXPECT_THAT(b.association.cibles, ElementsAre("exemple.fr/fromages affinés"));
}

TEST_F(LiensDesFavoris, RienDansLeTexteNEstInterprete) {
  const std::vector<std::string> textes{R"("a" 'b' c)", "$(touch x)", "`x`; rm -rf y",
                                        "-option",      "|x & y > z", "%20?subject=x&body=y"};
  for (const std::string& texte : textes) {
    b.AjouteFavori([&] {
      RecFavori favori = Favori("Affineur");
      favori.email = texte;
      favori.siteWeb = texte;
      return favori;
    }());
  }
  Ouvre();
  for (std::size_t i = 0; i < textes.size(); ++i) {
    b.association.cibles.clear();
    Choisit(favoris(), static_cast<int>(i));
    Clique(Le("txtEmail"));
    Clique(Le("txtWeb"));
    EXPECT_THAT(b.association.cibles, ElementsAre("mailto:" + textes[i], textes[i]));
  }
}

TEST_F(LiensDesFavoris, DeuxCentCinquanteSixLettresPassentToutes) {
  OuvreSur(std::string(256, 'e'), std::string(256, 'w'));
  Clique(Le("txtEmail"));
  Clique(Le("txtWeb"));
  EXPECT_THAT(b.association.cibles,
              ElementsAre("mailto:" + std::string(256, 'e'), std::string(256, 'w')));
}

TEST_F(LiensDesFavoris, UneBoiteVideNeFaitRien) {
  OuvreSur("", "   ");
  for (const char* nom : {"txtEmail", "txtWeb"}) {
    Clique(Le(nom));
    QTest::keyClick(&Le(nom), Qt::Key_Return);
    AttendOrdinaire(nom);
  }
  EXPECT_THAT(b.association.cibles, IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(LiensDesFavoris, SansAssociationLaMessagerieOuLeNavigateurManque) {
  OuvreSurAffineur();
  b.association.reponse = Ouverture::aucuneAssociation;
  ExigePointeurNormalAuxMessages();
  Clique(Le("txtEmail"));
  AttendMessage("Aucune association n'est définie pour le courrier sur Internet");
  b.messages.vus.clear();
  Clique(Le("txtWeb"));
  AttendMessage("Aucune association n'est définie pour naviguer sur Internet");
  EXPECT_FALSE(FinVue());
}

TEST_F(LiensDesFavoris, ToutAutreEchecSeTait) {
  OuvreSurAffineur();
  b.association.reponse = Ouverture::echec;
  Clique(Le("txtEmail"));
  Clique(Le("txtWeb"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(LiensDesFavoris, EntreeOuvreCommeUnClic) {
  OuvreSurAffineur();
  for (const char* nom : {"txtEmail", "txtWeb"}) {
    Le(nom).setFocus();
    QTest::keyClick(&Le(nom), Qt::Key_Return);
    QTest::keyClick(&Le(nom), Qt::Key_Return, Qt::ControlModifier);
  }
  EXPECT_THAT(b.association.cibles,
              ElementsAre("mailto:affineur@exemple.fr", "https://exemple.fr"));
}

TEST_F(LiensDesFavoris, LesBoitesDesAutresOngletsNeSontPasDesLiens) {
  OuvreSurAffineur();
  for (const auto& [onglet, nom] : {std::pair(3, "txtWebModifier"), {4, "txtWebSupprimer"}}) {
    CliqueOnglet(*fenetre, onglet);
    Clique(Le(nom));
  }
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
