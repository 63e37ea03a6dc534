// Handing a document over: the pointer, what is said in which case, and the path that is handed.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "plateforme/TexteChemin.h"
#include "sortie/DocumentsEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Envoyer : public testing::TestWithParam<Commande> {
 protected:
  void Envoie(const Vue& vue = VueMenu{"Noce", "Cake"}) {
    EnvoieDocument(*b.module, vue, GetParam().extension);
  }
  std::string Nom(const std::string& radical = "menu") const {
    return radical + Suffixe(GetParam().extension);
  }
  void AttendMessage(const char* texte, Icone icone) {
    EXPECT_THAT(b.messages.vus, ElementsAre(MessageVu{DepuisUtf8(texte), icone, "Gastrelle 2005"}));
    EXPECT_EQ(b.messages.bips, 0);
  }
  void AttendSilence() {
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(b.messages.bips, 0);
  }

  Bibliotheque b;
};

TEST_P(Envoyer, LeSablierEstLaAChaqueGesteSurLeDisque) {
  int gestes = 0;
  b.disque.pendant = [&](const std::string& ligne) {
    EXPECT_TRUE(b.pointeur.sablier) << ligne;
    ++gestes;
  };
  Envoie();
  EXPECT_EQ(gestes, 3);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_P(Envoyer, LeDocumentEstOuvertParSonCheminEntier) {
  Envoie();
  EXPECT_THAT(b.association.cibles, ElementsAre(EnUtf8(b.dossier.chemin() / Nom())));
  AttendSilence();
  EXPECT_TRUE(b.dossier.A(Nom()));
}

TEST_P(Envoyer, LeNomDuDossierPasseTelQuel) {
  std::vector<std::string> noms{"Ma cave à vins", "l'été (chaud)", "$(touch x)", "a;touch x",
                                "`touch x`",      "100 %20 &",     "--aide",     "日本"};
  if (conventionDuSysteme == Convention::posix) {  // what no name may hold elsewhere
    noms.insert(noms.end(), {"l'été \"chaud\"", "a | b", "cuillère\nà soupe"});
  }
  for (const std::string& nom : noms) {
    Bibliotheque ici(nom);
    EnvoieDocument(*ici.module, VueTruc{"T", "t"}, GetParam().extension);
    EXPECT_THAT(ici.association.cibles, ElementsAre(EnUtf8(ici.dossier.chemin() / Nom("truc"))));
    EXPECT_TRUE(ici.dossier.A(Nom("truc")));
  }
}

TEST_P(Envoyer, SansAssociationLeDocumentResteEtCEstDit) {
  b.association.reponse = Ouverture::aucuneAssociation;
  b.messages.pendant = [this] { EXPECT_FALSE(b.pointeur.sablier); };
  Envoie();
  AttendMessage(GetParam().sansAssociation, Icone::information);
  EXPECT_TRUE(b.dossier.A(Nom()));
}

TEST_P(Envoyer, UnAutreEchecSePasseEnSilence) {
  b.association.reponse = Ouverture::echec;
  Envoie();
  AttendSilence();
  EXPECT_TRUE(b.dossier.A(Nom()));
}

TEST_P(Envoyer, UnDocumentManqueEstDitUneFoisLePointeurRendu) {
  b.association.reponse = Ouverture::aucuneAssociation;
  b.disque.EchoueSur("crée", Panne::disquePlein);
  b.messages.pendant = [this] { EXPECT_FALSE(b.pointeur.sablier); };
  Envoie();
  AttendMessage(GetParam().nonCree, Icone::critique);
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

TEST_P(Envoyer, SansChoixUnTriNeDonneQuUnBip) {
  const std::vector<Vue> tris{VueFromagesTries{{}, {"Brie"}}, VueVinsTries{{}, {"Arbois"}},
                              VueFavorisTries{{}, {"Affineur"}}};
  for (const Vue& tri : tris) {
    b.messages.bips = 0;
    const int sabliers = b.pointeur.sabliers;
    Envoie(tri);
    EXPECT_EQ(b.messages.bips, 1);
    EXPECT_EQ(b.pointeur.sabliers, sabliers + 1);
    EXPECT_FALSE(b.pointeur.sablier);
  }
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

TEST_P(Envoyer, UnChoixSansNomEnEstUn) {
  Envoie(VueVinsTries{"", {}});
  EXPECT_TRUE(b.dossier.A(Nom("vintri")));
  AttendSilence();
}

TEST_P(Envoyer, CeQuiNAPasDeDocumentNeSEcritPas) {
  const std::vector<Vue> vues{std::monostate{}, VueCaveDuVin{"Abymes", "Savoie", {}, ""},
                              VueNotes{"Des notes."}, VueCourses{{{"Sel", "Du sel."}}}};
  for (const Vue& vue : vues) {
    SCOPED_TRACE(vue.index());
    b.messages.vus.clear();
    Envoie(vue);
    AttendMessage(GetParam().nonCree, Icone::critique);
    EXPECT_FALSE(b.pointeur.sablier);
  }
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

TEST_P(Envoyer, LeSecondDocumentRemplaceLePremier) {
  Envoie(VueMenu{"Noce", std::string(1'000, 'x')});
  Envoie(VueMenu{"Baptême", "Bref."});
  EXPECT_THAT(b.dossier.Lit(Nom()), testing::EndsWith("\r\n\r\nBref.\r\n"));
  EXPECT_THAT(b.dossier.Lit(Nom()), testing::Not(testing::HasSubstr("xxx")));
}

INSTANTIATE_TEST_SUITE_P(DeuxCommandes, Envoyer, testing::ValuesIn(commandes),
                         [](const testing::TestParamInfo<Commande>& cas) {
                           return std::string(cas.param.extension == Extension::txt ? "BlocNotes"
                                                                                    : "Traitement");
                         });

TEST(DeuxExtensions, DonnentDeuxDocumentsSeparesEtIdentiques) {
  Bibliotheque b;
  const Vue vue = VueMenu{"Noce", "Cake"};
  EnvoieDocument(*b.module, vue, Extension::txt);
  EnvoieDocument(*b.module, vue, Extension::doc);
  EXPECT_EQ(b.dossier.Lit("menu.txt"), b.dossier.Lit("menu.doc"));
  EnvoieDocument(*b.module, VueMenu{"Noce", "Autre"}, Extension::doc);
  EXPECT_THAT(b.dossier.Lit("menu.txt"), testing::EndsWith("\r\nCake\r\n"));
  EXPECT_THAT(b.dossier.Lit("menu.doc"), testing::EndsWith("\r\nAutre\r\n"));
}

}  // namespace
}  // namespace gastrelle::essai
