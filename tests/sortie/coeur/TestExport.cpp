// The document of the export, byte for byte, and what is read for it.

#include <algorithm>

#include <gmock/gmock.h>

#include "doublures/Entetes.h"
#include "sortie/Modeles.h"
#include "sortie/coeur/CoeurExport.h"

namespace gastrelle::essai {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::string ModeleExport() {
  return Modele("export");
}

namespace {

class DocumentDExport : public CoeurExport {
 protected:
  /// A recipe behind the last one of a library that has started.
  void AjouteBrute(RecRecette recette) {
    recette.actif = vivant;
    b.module->bufRecette.Ecrit(b.module->bufRecette.ProchainNumero(), recette);
    b.module->bufRecette.Compte(1);
  }
  static std::size_t Fois(std::string_view quoi, std::string_view dans) {
    std::size_t fois = 0;
    for (std::size_t i = dans.find(quoi); i != std::string::npos; i = dans.find(quoi, i + 1)) {
      ++fois;
    }
    return fois;
  }
};

TEST_F(DocumentDExport, EstCeluiDuModele) {
  DemarreExport(b);
  ASSERT_FALSE(ModeleExport().empty());
  EXPECT_TRUE(Exporte(toutesLesFamilles));
  EXPECT_EQ(Document(), ModeleExport());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(DocumentDExport, NAQueLesFamillesDemandeesDansLOrdreDemande) {
  DemarreExport(b);
  EXPECT_TRUE(Exporte({4, 2}));
  EXPECT_THAT(Document(), StartsWith(EnteteExport() + "* Famille de recettes : VIDE\r\n\r\n" +
                                     "* Famille de recettes : POTAGES\r\n\r\n"));
  EXPECT_THAT(Document(), Not(HasSubstr("Daube")));
}

TEST_F(DocumentDExport, SansFamilleNAQueSonEntete) {
  DemarreExport(b);
  EXPECT_TRUE(Exporte({}));
  EXPECT_EQ(Document(), EnteteExport());
}

TEST_F(DocumentDExport, TientChaqueRecetteVivanteUneFois) {
  constexpr int nombre = 200;
  DemarreExport(b, [&] {
    for (int i = 0; i < nombre; ++i) {
      b.AjouteRecette(2 + i % 3, "n" + std::to_string(i) + ".", "t" + std::to_string(i) + ".");
    }
  });
  EXPECT_TRUE(Exporte(toutesLesFamilles));
  const std::string document = Document();
  for (int i = 0; i < nombre; ++i) {
    const std::string numero = std::to_string(i);
    EXPECT_EQ(Fois("** Recette : n" + numero + ".\r\n\r\nt" + numero + ".\r\n\r\n", document), 1U)
        << i;
  }
}

TEST_F(DocumentDExport, RemplaceCeQuIlTenait) {
  DemarreExport(b);
  b.dossier.Ecrit(documentExport, std::string(10000, 'x'));
  EXPECT_TRUE(Exporte(toutesLesFamilles));
  EXPECT_EQ(Document(), ModeleExport());
}

TEST_F(DocumentDExport, GardeEntierUnTextePlusLongQueCeQueMontreLaFenetre) {
  for (const std::size_t longueur : {30001U, 32767U, 65536U, 2000000U}) {
    const std::string texte = "[" + std::string(longueur, '\xE9') + "]";
    Bibliotheque avec;
    avec.AjouteRecette(2, "Longue", texte);
    avec.AjouteRecette(2, "Courte", "Fin.");
    avec.Demarre();
    EXPECT_TRUE(EcritExport(*avec.module, {2}, sansEntreTemps));
    EXPECT_THAT(avec.dossier.Lit(documentExport),
                EndsWith("** Recette : Longue\r\n\r\n" + texte +
                         "\r\n\r\n** Recette : Courte\r\n\r\nFin.\r\n\r\n"));
  }
}

TEST_F(DocumentDExport, AUnTexteDesQueSaPlaceEstAuDessusDeZero) {
  DemarreExport(b);
  RecRecette recette;
  recette.idFamille = 4;
  recette.nomRecette = "Loin";
  recette.posTexte = 100000;  // behind the end of the pool
  recette.lgTexte = 10;
  AjouteBrute(recette);
  recette.nomRecette = "Avant";
  recette.posTexte = -1;
  AjouteBrute(recette);
  EXPECT_TRUE(Exporte({4}));
  EXPECT_EQ(Document(), EnteteExport() +
                            "* Famille de recettes : VIDE\r\n\r\n"
                            "** Recette : Loin\r\n\r\n\r\n\r\n"
                            "** Recette : Avant\r\n\r\n");
}

TEST_F(DocumentDExport, NeConnaitDeVivantesQuAMoinsUn) {
  DemarreExport(b);
  RecRecette recette;
  b.module->bufRecette.Lit(7, recette);
  recette.actif = 1;
  b.module->bufRecette.Ecrit(7, recette);
  EXPECT_TRUE(Exporte({3}));
  EXPECT_THAT(Document(), Not(HasSubstr("Daube")));
}

TEST_F(DocumentDExport, DateLeJourSansZero) {
  b.Demarre();
  for (const auto& [date, attendue] :
       std::vector<std::pair<std::chrono::year_month_day, std::string>>{
           {std::chrono::year{2026} / 3 / 5, "5/3/2026"},
           {std::chrono::year{2026} / 12 / 31, "31/12/2026"},
           {std::chrono::year{2030} / 10 / 1, "1/10/2030"}}) {
    b.horloge.date = date;
    EXPECT_TRUE(Exporte({}));
    EXPECT_EQ(Document(), "Gastrelle 2005 Export des recettes au " + attendue + "\r\n\r\n\r\n");
  }
}

// What is read, and what isn't touched.

using LectureDExport = DocumentDExport;

TEST_F(LectureDExport, TesteLesTroisFichiersPuisLitLesRecettesUneFois) {
  DemarreExport(b);
  EXPECT_TRUE(Exporte(toutesLesFamilles));
  const auto& journal = b.disque.journal();
  ASSERT_GE(journal.size(), 7U);
  EXPECT_THAT(
      std::vector(journal.begin(), journal.begin() + 7),
      ElementsAre("crée export.doc", "existe GLR1.DAT", "existe GLR2.DAT", "existe GLR3.DAT",
                  "lit GLR1.DAT 130+130", "longueur GLR2.DAT", StartsWith("lit GLR2.DAT ")));
  EXPECT_EQ(std::count_if(journal.begin(), journal.end(),
                          [](const std::string& l) { return l.starts_with("lit GLR2.DAT "); }),
            1);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("crée export.doc",
                          "écrit export.doc 0+" + std::to_string(ModeleExport().size())));
}

TEST_F(LectureDExport, LaisseLesFichesDeTravail) {
  DemarreExport(b);
  const std::string famille = Octets(b.module->bufFamille.courant());
  const std::string recette = Octets(b.module->bufRecette.courant());
  static_cast<void>(FamillesAExporter(*b.module));
  EXPECT_TRUE(Exporte(toutesLesFamilles));
  EXPECT_EQ(Octets(b.module->bufFamille.courant()), famille);
  EXPECT_EQ(Octets(b.module->bufRecette.courant()), recette);
}

TEST_F(LectureDExport, FinitSansRienDireQuandLEnTeteCompteTrop) {
  DemarreExport(b);
  b.module->bufRecette.nbActifs() = 32767;
  b.module->bufFamille.nbActifs() = 32767;
  EXPECT_EQ(FamillesAExporter(*b.module).size(), 3U);
  EXPECT_TRUE(Exporte(toutesLesFamilles));
  EXPECT_EQ(Document(), ModeleExport());
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 32767);
  EXPECT_EQ(b.module->bufFamille.nbActifs(), 32767);
}

TEST_F(LectureDExport, SArreteAuCompteDeLEnTete) {
  DemarreExport(b);
  b.module->bufRecette.nbActifs() = 3;
  b.module->bufFamille.nbActifs() = 2;
  EXPECT_EQ(FamillesAExporter(*b.module).size(), 2U);
  EXPECT_TRUE(Exporte(toutesLesFamilles));
  EXPECT_EQ(Fois("** Recette : ", Document()), 3U);
  EXPECT_EQ(Fois("* Famille de recettes : ", Document()), 3U);
  EXPECT_THAT(Document(), HasSubstr("abats"));
  EXPECT_THAT(Document(), Not(HasSubstr("Sans rien")));
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 3);
}

TEST_F(LectureDExport, PasseLaMainAChaqueFamilleEtAChaqueRecette) {
  DemarreExport(b);
  int fois = 0;
  EXPECT_TRUE(EcritExport(*b.module, toutesLesFamilles, [&] { ++fois; }));
  EXPECT_EQ(fois, 3 + 5);
}

TEST_F(LectureDExport, LesFamillesSontVivantesRogneesDansLOrdreDesFiches) {
  b.AjouteFamille("  Zestes ");
  b.AjouteFamille("Abats");
  b.AjouteFamille("Crèmes"_1252);
  b.Demarre();
  RecFamille famille;
  b.module->bufFamille.Lit(4, famille);
  famille.actif = 0;
  b.module->bufFamille.Ecrit(4, famille);
  b.module->bufFamille.Compte(-1);
  b.disque.OublieJournal();
  EXPECT_THAT(FamillesAExporter(*b.module),
              ElementsAre(EntreeListe{"Potages", 2}, EntreeListe{"Zestes", 3},
                          EntreeListe{std::string("Crèmes"_1252), 5}));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.disque.journal(), Not(Contains(StartsWith("existe"))));
}

}  // namespace
}  // namespace gastrelle::essai
