// One source file: what is read of it, and on which line a refusal points.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "usine/Source.h"
#include "usine/SourcesEssai.h"

namespace gastrelle::usine {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::array cles{"nom"sv, "texte"sv, "liste"sv, "nombre"sv, "mot"sv};
constexpr std::array mots{"?"sv, "vache"sv, "chèvre"sv};

class UneSource : public testing::Test {
 protected:
  void Lit(std::string_view contenu, const std::function<void(const Entree&)>& pourChaque) {
    dossier.Ecrit("essai.toml", contenu);
    const Rubrique rubrique{"plat", "nom", cles, pourChaque};
    LitSource(dossier.chemin(), "essai.toml", {&rubrique, 1}, journal);
  }
  /// Takes the text of each entry as prose of 3 to 40 bytes.
  void LitTextes(std::string_view contenu) {
    Lit(contenu, [&](const Entree& e) { lus.push_back(e.Texte("texte", {3, 40})); });
  }
  [[nodiscard]] std::vector<std::string> Lignes() const {
    std::ostringstream sortie;
    journal.Ecrit(sortie);
    std::vector<std::string> lignes;
    std::istringstream entree(sortie.str());
    for (std::string ligne; std::getline(entree, ligne);) {
      lignes.push_back(ligne);
    }
    return lignes;
  }

  essai::DossierEssai dossier;
  Journal journal;
  std::vector<std::string> lus;
};

TEST_F(UneSource, DonneSesTextesEnWindows1252) {
  LitTextes("[[plat]]\nnom='A'\ntexte='Rosé'\n[[plat]]\nnom='B'\ntexte='Œuf'");
  EXPECT_THAT(lus, ElementsAre("Ros\xE9", "\x8Cuf"));
  EXPECT_THAT(Lignes(), IsEmpty());
}

TEST_F(UneSource, RefuseUnAccentDetacheDeSaLettre) {
  LitTextes("[[plat]]\ntexte='Rose\u0301'");
  EXPECT_THAT(Lignes(), ElementsAre(HasSubstr("(U+0301) ne tient pas en Windows-1252")));
}

TEST_F(UneSource, DitLaLigneDeLaValeur) {
  LitTextes("# En-tête\n\n[[plat]]\nnom = 'A'\ntexte = 'un'\n");
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:5: A: texte : 2 caractères, au moins 3 attendus"));
}

TEST_F(UneSource, DitLaLigneDUneFauteAuMilieuDUnTexte) {
  LitTextes("[[plat]]\nnom = 'A'\ntexte = '''un\n\ndeux; trois'''\n");
  EXPECT_THAT(Lignes(),
              ElementsAre("essai.toml:5: A: texte : blanc attendu devant ; ! ? : [deux; trois]"));
}

TEST_F(UneSource, CompteLaLigneDOuvertureDUnTexte) {
  LitTextes("[[plat]]\nnom = 'A'\ntexte = '''\nun\ndeux; trois'''\n");
  EXPECT_THAT(Lignes(), ElementsAre(HasSubstr("essai.toml:5: ")));
}

TEST_F(UneSource, RenonceAuCompteQuandLesSautsSontEcritsAutrement) {
  LitTextes("[[plat]]\nnom = 'A'\ntexte = \"un\\ndeux; trois\"\n");
  EXPECT_THAT(Lignes(), ElementsAre(HasSubstr("essai.toml:3: ")));
}

TEST_F(UneSource, CoupeLExtraitAutourDeLaFaute) {
  LitTextes("[[plat]]\ntexte = 'Le commencement du texte un; et sa fin.'\n");
  EXPECT_THAT(Lignes(), ElementsAre(HasSubstr("[encement du texte un; et sa fin.]")));
}

TEST_F(UneSource, DitLeCaractereQueLaPageDeCodeNAPas) {
  LitTextes("[[plat]]\nnom = 'A'\ntexte = 'à ≈ 60'\n");
  EXPECT_THAT(Lignes(),
              ElementsAre("essai.toml:3: A: texte : [≈] (U+2248) ne tient pas en Windows-1252"));
}

TEST_F(UneSource, CompteUnSautDeLignePourDeuxCaracteres) {
  Lit("[[plat]]\ntexte = '''a\nb'''\n[[plat]]\ntexte = '''aa\nb'''\n", [](const Entree& e) {
    static_cast<void>(e.Texte("texte", {1, 4}));
  });
  EXPECT_THAT(Lignes(),
              ElementsAre("essai.toml:5: entrée 2: texte : 5 caractères, au plus 4 permis"));
}

TEST_F(UneSource, AccepteLesDeuxBornes) {
  Lit("[[plat]]\ntexte='abc'\n[[plat]]\ntexte='abcde'", [](const Entree& e) {
    static_cast<void>(e.Texte("texte", {3, 5}));
  });
  EXPECT_THAT(Lignes(), IsEmpty());
}

TEST_F(UneSource, LaisseManquerUnTexteFacultatif) {
  Lit("[[plat]]\nnom='A'", [&](const Entree& e) { lus.push_back(e.Texte("texte", {0, 40})); });
  EXPECT_THAT(lus, ElementsAre(""));
  EXPECT_THAT(Lignes(), IsEmpty());
}

TEST_F(UneSource, RefuseUnTexteQuiManqueOuNEnEstPasUn) {
  LitTextes("[[plat]]\nnom = 'A'\n[[plat]]\nnom = 'B'\ntexte = 12\n");
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:1: A: texte : texte attendu",
                                    "essai.toml:5: B: texte : texte attendu"));
}

TEST_F(UneSource, DitLaLigneDUnElementDeListe) {
  Lit("[[plat]]\nnom = 'A'\nliste = [\n'un',\n'deux;',\n3,\n]\n", [](const Entree& e) {
    static_cast<void>(e.Textes("liste", 3, {1, 40, formes::phrase}));
  });
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:5: A: liste : blanc attendu devant ; ! ? : [deux;]",
                                    "essai.toml:6: A: liste : texte attendu"));
}

TEST_F(UneSource, RefuseUneListeTropCourte) {
  Lit("[[plat]]\nnom = 'A'\nliste = ['un']\n", [](const Entree& e) {
    static_cast<void>(e.Textes("liste", 2, {1, 40}));
  });
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:3: A: liste : au moins 2 attendus"));
}

TEST_F(UneSource, NeTientPourNombreQueLesEntiersDeLIntervalle) {
  std::vector<int> nombres;
  Lit("[[plat]]\nnombre=0\n[[plat]]\nnombre=5\n[[plat]]\nnombre=6\n[[plat]]\nnombre=-1\n"
      "[[plat]]\nnombre=3.0\n[[plat]]\nnombre=true\n[[plat]]\nnombre='3'\n[[plat]]\nnom='A'",
      [&](const Entree& e) { nombres.push_back(e.Nombre("nombre", 0, 5)); });
  EXPECT_THAT(nombres, ElementsAre(0, 5, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(Lignes().size(), 6U);
  EXPECT_EQ(Lignes()[0], "essai.toml:6: entrée 3: nombre : nombre de 0 à 5 attendu");
}

TEST_F(UneSource, DonneLaPlaceDUnMotDansSaTable) {
  std::vector<int> codes;
  Lit("[[plat]]\nmot='?'\n[[plat]]\nmot='chèvre'\n[[plat]]\nmot='Vache'\n",
      [&](const Entree& e) { codes.push_back(e.Code("mot", mots)); });
  EXPECT_THAT(codes, ElementsAre(0, 2, 0));
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:6: entrée 3: mot : [Vache] inconnu"));
}

TEST_F(UneSource, RefuseUneCleInconnue) {
  LitTextes("[[plat]]\nnom = 'A'\ntexte = 'abc'\ntextes = 'abc'\n");
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:4: A: clé inconnue : textes"));
}

TEST_F(UneSource, RefuseUneRubriqueInconnue) {
  LitTextes("[[plat]]\ntexte = 'abc'\n[[plats]]\ntexte = 'abd'\n");
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:3: plats: rubrique inconnue"));
}

TEST_F(UneSource, RefuseUneRubriqueSansEntree) {
  LitTextes("# rien\n");
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml: plat: aucune entrée"));
}

TEST_F(UneSource, RefuseUneRubriqueVide) {
  LitTextes("plat = []\n");
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml: plat: aucune entrée"));
}

TEST_F(UneSource, RefuseUneEntreeQuiNEstPasUneTable) {
  LitTextes("plat = [{texte='abc'},\n3]\n");
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:2: entrée 2: table attendue"));
  EXPECT_THAT(lus, ElementsAre("abc"));
}

TEST_F(UneSource, DitLaLigneDUnToml) {
  LitTextes("[[plat]]\nnom = 'A'\ntexte = 'abc\n");
  EXPECT_THAT(Lignes(), ElementsAre(HasSubstr("essai.toml:3: fichier: ")));
  EXPECT_THAT(lus, IsEmpty());
}

TEST_F(UneSource, RefuseUnFichierAbsent) {
  LitSource(dossier.chemin(), "absent.toml", {}, journal);
  EXPECT_THAT(Lignes(), ElementsAre(testing::StartsWith("absent.toml: fichier: ")));
}

TEST_F(UneSource, NeTrouvePasUniqueUnTexteQuiNeDiffereQueParLaCasse) {
  Uniques uniques;
  std::vector<bool> neufs;
  Lit("[[plat]]\nnom='Pâté'\n[[plat]]\nnom='PÂTÉ'\n[[plat]]\nnom='Pate'\n", [&](const Entree& e) {
    neufs.push_back(uniques.Exige(e, "nom", e.Texte("nom", {1, 40, formes::nom})));
  });
  EXPECT_THAT(neufs, ElementsAre(true, false, true));
  EXPECT_THAT(Lignes(), ElementsAre("essai.toml:4: PÂTÉ: nom : déjà donné en essai.toml:1"));
}

}  // namespace
}  // namespace gastrelle::usine
