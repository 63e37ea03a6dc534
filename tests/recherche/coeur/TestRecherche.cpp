// The search through each of the three catalogues: what is a hit, in which order they come, and
// where they end.

#include <filesystem>
#include <initializer_list>

#include "recherche/coeur/RechercheEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RechercheDans : public CatalogueEssai {};
INSTANTIATE_TEST_SUITE_P(Catalogues, RechercheDans, lesTroisCatalogues, NomDuCatalogue);

TEST_P(RechercheDans, ChaqueFenetreALeSien) {
  EXPECT_EQ(&CatalogueDe(catalogue().vue), &catalogue());
}

TEST_P(RechercheDans, VaDuDeuxiemeEnregistrementAuDernier) {
  Pose({{"Ail"}, {"Orge"}, {"Ail"}, {"Oie"}, {"Ail"}});
  // The header's signature is no title.
  EXPECT_THAT(Toutes("GL"), IsEmpty());
  EXPECT_EQ(annonce, aucune);
  EXPECT_THAT(Toutes("ail"), ElementsAre(2, 4, 6));
  EXPECT_EQ(annonce, plusDAutre);
}

TEST_P(RechercheDans, LeTitreVientAvantLeTexteEtUneFicheNEstTrouveeQuUneFois) {
  Pose({{"Ail rose et ail noir", "De l'ail, encore de l'ail."}, {"Soupe", "Ail, ail."}, {"Z"}});
  EXPECT_THAT(Toutes("AIL"), ElementsAre(2, 3));
  const std::optional<Occurrence> premiere = Premiere("ail");
  ASSERT_TRUE(premiere);
  EXPECT_TRUE(premiere->dansTitre);
  EXPECT_EQ(premiere->texte, "De l'ail, encore de l'ail.");
}

TEST_P(RechercheDans, UnTitreTrouveEstRogneUnTitreDuTexteALesBlancsDeSonChamp) {
  Pose({{"  Farce au lard ", "Du sel."}});
  const std::string champ = "  Farce au lard " + std::string(112, ' ');
  EXPECT_EQ(Premiere("lard")->titre, "Farce au lard");
  const std::optional<Occurrence> texte = Premiere("sel");
  EXPECT_FALSE(texte->dansTitre);
  EXPECT_EQ(texte->titre, champ);
  EXPECT_EQ(texte->texte, "Du sel.");
}

TEST_P(RechercheDans, UnTitreSeChercheSansSesBlancsDesBouts) {
  Pose({{"  Farce"}, {"Farce au lard"}});
  EXPECT_THAT(Toutes("  farce"), IsEmpty());
  EXPECT_THAT(Toutes("farce "), ElementsAre(3));
}

TEST_P(RechercheDans, UnTitreDeTouteSaLargeurSeTrouveJusquASonDernierOctet) {
  Pose({{std::string(127, 'x') + 'y'}});
  EXPECT_EQ(Premiere("xy")->titre, std::string(127, 'x') + 'y');
  EXPECT_TRUE(Premiere(std::string(127, 'x') + 'y'));
  EXPECT_FALSE(Premiere("yx"));
}

TEST_P(RechercheDans, UnTitreEgalOuUnTexteDeMemeLongueurSeTrouve) {
  Pose({{std::string("Aïoli"_1252)},
        {"Sauce", std::string("AÏOLI"_1252)},
        {"Sauce", std::string("Aïol"_1252)},
        {"Sauce", std::string("x Aïoli"_1252)},
        {"Z"}});
  EXPECT_THAT(Toutes("aïoli"_1252), ElementsAre(2, 3, 5));
}

TEST_P(RechercheDans, LesCapitalesNeComptentPasLesAccentsSi) {
  Pose({{"Dinde farcie"},
        {std::string("BŒUF BRAISÉ"_1252)},
        {std::string("bœuf braisé"_1252)},
        {"Boeuf braise"},
        {"Z"}});
  EXPECT_THAT(Toutes("Bœuf Braisé"_1252), ElementsAre(3, 4));
  EXPECT_THAT(Toutes("braise"), ElementsAre(5));
  EXPECT_THAT(Toutes("ARCI"), ElementsAre(2));
}

TEST_P(RechercheDans, CeQuiEstSupprimeNEstNiTrouveNiCompte) {
  Pose({{"Ail"}, {"Ail", "Ail", false}, {"Soupe"}, {"Ail", "", false}, {"Ail"}, {"Ail"}, {"Z"}});
  EXPECT_THAT(Toutes("ail"), ElementsAre(2, 6, 7));
  EXPECT_EQ(annonce, plusDAutre);
}

TEST_P(RechercheDans, NExamineRienDerriereLeDernierVivantQueLEnTeteCompte) {
  Pose({{"Ail"}, {"Ail"}, {"Orge"}, {"Ail"}, {"Ail"}});
  PoseCompte(3);
  EXPECT_THAT(Toutes("ail"), ElementsAre(2, 3));
  EXPECT_EQ(annonce, plusDAutre);
  PoseCompte(1);
  EXPECT_THAT(Toutes("ail"), ElementsAre(2));
  EXPECT_THAT(Toutes("orge"), IsEmpty());
  EXPECT_EQ(annonce, aucune);
}

TEST_P(RechercheDans, UnEnTeteQuiCompteTropFinitAuDernierEnregistrement) {
  Pose({{"Ail"}, {"Orge"}, {"Ail", "", false}});
  for (const std::int16_t compte : std::initializer_list<std::int16_t>{3, 4, 5, 32767}) {
    PoseCompte(compte);
    EXPECT_THAT(Toutes("oie"), IsEmpty());
    EXPECT_EQ(annonce, aucune);
    EXPECT_THAT(Toutes("ail"), ElementsAre(2));
    EXPECT_EQ(annonce, plusDAutre);
  }
}

TEST_P(RechercheDans, SansUnSeulVivantNeTrouveRien) {
  Pose({{"Ail", "Ail", false}, {"Ail", "Ail", false}});
  EXPECT_THAT(Toutes("ail"), IsEmpty());
  EXPECT_EQ(annonce, aucune);
}

TEST_P(RechercheDans, SurUnFichierSansFicheNeTrouveRien) {
  const std::size_t unEnTete = Avec([](auto& fichier) { return fichier.longueur; });
  std::filesystem::resize_file(b.dossier.chemin() / NomFiches(), unEnTete);
  for (const std::int16_t compte : std::initializer_list<std::int16_t>{0, 15}) {
    PoseCompte(compte);
    EXPECT_THAT(Toutes("ail"), IsEmpty());
    EXPECT_EQ(annonce, aucune);
  }
}

// Where going on ends without another look.

TEST_P(RechercheDans, ContinuerFinitSurLaDerniereFiche) {
  Pose({{"Orge"}, {"Ail"}});
  Recherche recherche = Cherche("ail");
  EXPECT_EQ(recherche.Suivante()->numero, 3);
  EXPECT_TRUE(recherche.EstFinie());
}

TEST_P(RechercheDans, ContinuerFinitSurLAvantDerniereSansExaminerLaDerniere) {
  Pose({{"Ail"}, {"Ail"}, {"Ail"}});
  EXPECT_THAT(Toutes("ail"), ElementsAre(2, 3));
  EXPECT_EQ(annonce, plusDAutre);
  // Without a hit right before it the last one is found.
  Change(3, [](auto& e) { NomOuSignature(e) = "Oie"; });
  EXPECT_THAT(Toutes("ail"), ElementsAre(2, 4));
}

TEST_P(RechercheDans, ContinuerFinitSurLAvantDerniereMemeSiLaDerniereEstSupprimee) {
  Pose({{"Ail"}, {"Orge"}, {"Ail"}, {"Ail", "", false}});
  EXPECT_THAT(Toutes("ail"), ElementsAre(2, 4));
}

TEST_P(RechercheDans, ContinuerFinitQuandTousLesVivantsSontVus) {
  Pose({{"Ail"}, {"Ail"}, {"x", "", false}, {"x", "", false}, {"x", "", false}});
  Recherche recherche = Cherche("ail");
  EXPECT_EQ(recherche.Suivante()->numero, 2);
  EXPECT_FALSE(recherche.EstFinie());
  EXPECT_EQ(recherche.Suivante()->numero, 3);
  EXPECT_TRUE(recherche.EstFinie());
}

TEST_P(RechercheDans, UneSeuleFicheSeTrouveEtFinit) {
  Pose({{"Ail"}});
  ASSERT_EQ(Avec([](auto& fichier) { return fichier.Nombre(); }), 2);
  EXPECT_THAT(Toutes("ail"), ElementsAre(2));
  EXPECT_EQ(annonce, plusDAutre);
}

TEST_P(RechercheDans, SansRienTrouverVaJusquALaDerniere) {
  Pose({{"Orge"}, {"Orge"}, {"Ail"}});
  EXPECT_THAT(Toutes("ail"), ElementsAre(4));
}

TEST_P(RechercheDans, ReprendALaFicheSuivanteApresUneDemandeSansSuite) {
  Pose({{"Ail"}, {"Orge"}, {"Orge"}, {"Orge"}});
  Recherche recherche = Cherche("ail");
  EXPECT_EQ(VersUtf8(recherche.MessageDeFin()), aucune);
  EXPECT_TRUE(recherche.Suivante());
  EXPECT_EQ(VersUtf8(recherche.MessageDeFin()), plusDAutre);
  EXPECT_FALSE(recherche.Suivante());
  EXPECT_TRUE(recherche.EstFinie());
  EXPECT_EQ(VersUtf8(recherche.MessageDeFin()), plusDAutre);
}

TEST_P(RechercheDans, TientLesPlusGrandsComptes) {
  constexpr int nombre = 32766;
  std::string octets = b.dossier.Lit(NomFiches());
  Avec([&](auto& fichier) {
    octets.resize(static_cast<std::size_t>(fichier.longueur));
    auto e = fichier.courant();
    e = {};
    e.actif = vivant;
    for (int i = 0; i < nombre; ++i) {
      NomOuSignature(e) = i % 10000 == 9999 || i == nombre - 1 ? "Ail" : "Oie";
      octets += Octets(e);
    }
  });
  b.dossier.Ecrit(NomFiches(), octets);
  PoseCompte(nombre);
  EXPECT_THAT(Toutes("ail"), ElementsAre(10001, 20001, 30001, 32767));
  PoseCompte(32767);
  EXPECT_THAT(Toutes("ail"), ElementsAre(10001, 20001, 30001, 32767));
  PoseCompte(32765);
  EXPECT_THAT(Toutes("ail"), ElementsAre(10001, 20001, 30001));
  EXPECT_THAT(Toutes("absent"), IsEmpty());
}

TEST_P(RechercheDans, LaisseLesFichesDeTravailEtLesFichiersCommeIlsSont) {
  Pose({{"Ail", "Un texte."}, {"Oie", "Un ail."}, {"Z"}});
  Avec([](auto& fichier) { fichier.LitCourant(2); });
  const auto deTravail = [&] {
    return Avec([](auto& fichier) { return Octets(fichier.entete()) + Octets(fichier.courant()); });
  };
  const std::string avant = deTravail();
  EXPECT_THAT(Toutes("ail"), ElementsAre(2, 3));
  EXPECT_EQ(deTravail(), avant);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_FALSE(b.module->erreurFatale);
}

TEST(EntreDeuxFiches, LaRecherchePasseLaMain) {
  Bibliotheque b;
  b.AjouteRecette(2, "Rôti"_1252, "Une heure au four.");
  b.Demarre();
  Recherche recherche(*b.module, CatalogueDe(EntreeVue::recettes), "absente");
  int appels = 0;
  EXPECT_FALSE(recherche.Suivante([&] { ++appels; }));
  EXPECT_EQ(appels, 2);
}

}  // namespace
}  // namespace gastrelle::essai
