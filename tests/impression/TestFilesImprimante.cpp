// Queues and services that don't do what one expects: the command ends without a word, and the next
// one works.

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <gmock/gmock.h>

#include "impression/ImpressionEssai.h"
#include "impression/PagesLues.h"
#include "sortie/Impression.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;

class FilesImprimante : public ImpressionEssai {
 protected:
  /// Prints a recipe; how long the command took.
  std::chrono::milliseconds Imprime() {
    const auto debut = std::chrono::steady_clock::now();
    ImprimeVue(module, VueRecette{"Potages", "Soupe", "Un texte.\r\nDeux.", {}});
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() -
                                                                 debut);
  }
  void TearDown() override {
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_FALSE(b.pointeur.sablier);
  }

  static constexpr std::chrono::milliseconds unInstant{3000};
};

TEST_F(FilesImprimante, SansFileParDefautRienNeSImprime) {
  ServeurImpression::Commande("lpadmin", {"-x", "essai"});
  EXPECT_LT(Imprime(), unInstant);
  ServeurImpression::Commande("lpadmin", {"-p", "autre", "-E", "-v", "dossier:/"});
  EXPECT_THAT(ServeurImpression::Commande("lpstat", {"-e"}).toStdString(),
              testing::HasSubstr("autre"));
  EXPECT_LT(Imprime(), unInstant);
  EXPECT_EQ(acces.ParDefaut(), nullptr);
  EXPECT_EQ(ServeurImpression::TravauxEnAttente(), 0);
  EXPECT_TRUE(serveur.RienSorti());
}

TEST_F(FilesImprimante, SansServiceIlNYAPasDImprimante) {
  serveur.Arrete();
  EXPECT_LT(Imprime(), unInstant);
  EXPECT_EQ(acces.ParDefaut(), nullptr);
}

TEST_F(FilesImprimante, UneFileArreteeGardeLeDocument) {
  ServeurImpression::Commande("cupsdisable", {"essai"});
  EXPECT_LT(Imprime(), unInstant);
  EXPECT_EQ(ServeurImpression::TravauxEnAttente(), 1);
  EXPECT_TRUE(serveur.RienSorti());
  ServeurImpression::Commande("cupsenable", {"essai"});
  EXPECT_EQ(LitDocument(serveur.Sortie(1)).lignes.size(), 5U);
}

TEST_F(FilesImprimante, UneFileQuiRefuseNImprimeRien) {
  ServeurImpression::Commande("cupsreject", {"essai"});
  EXPECT_LT(Imprime(), unInstant);
  EXPECT_EQ(ServeurImpression::TravauxEnAttente(), 0);
  ServeurImpression::Commande("cupsaccept", {"essai"});
  Imprime();
  EXPECT_EQ(LitDocument(serveur.Sortie(1)).lignes.size(), 5U);
}

TEST_F(FilesImprimante, UneFileQuiDisparaitEnCoursDePageNEmpecheRien) {
  auto imprimante = acces.ParDefaut();
  ASSERT_NE(imprimante, nullptr);
  imprimante->PosePolice({"Times New Roman", 10});
  imprimante->Imprime("Une ligne");
  imprimante->PasseALaLigne();
  ServeurImpression::Commande("lpadmin", {"-x", "essai"});
  imprimante->Imprime("Une autre");
  imprimante->PasseALaPage();
  imprimante->Imprime("Une page");
  imprimante->Finit();
  imprimante.reset();
  EXPECT_TRUE(serveur.RienSorti());
  EXPECT_LT(Imprime(), unInstant);
}

TEST_F(FilesImprimante, UnServiceFigeNeRetientPasLeProgramme) {
  constexpr std::chrono::seconds patience{8};
  serveur.Fige(true);
  EXPECT_LT(Imprime(), patience);
  serveur.Fige(false);
  EXPECT_TRUE(QTest::qWaitFor([&] { return acces.ParDefaut() != nullptr; }, 10'000));
  Imprime();
  EXPECT_EQ(LitDocument(serveur.Sortie(1)).lignes.size(), 5U);
}

TEST_F(FilesImprimante, UneFileGardeeNeDemandePasDeMotDePasse) {
  ServeurImpression::Commande("lpadmin", {"-p", "essai", "-o", "printer-op-policy=gardee"});
  std::vector<std::string> boites;
  QTimer veille;
  QObject::connect(&veille, &QTimer::timeout, [&] {
    if (QWidget* boite = QApplication::activeModalWidget()) {
      boites.push_back(boite->windowTitle().toStdString());
      boite->close();
    }
  });
  veille.start(std::chrono::milliseconds(100));
  EXPECT_LT(Imprime(), unInstant);
  EXPECT_THAT(boites, IsEmpty());
  EXPECT_EQ(ServeurImpression::TravauxEnAttente(), 0);
  EXPECT_TRUE(serveur.RienSorti());
}

TEST_F(FilesImprimante, UnDocumentSansLigneNEstPasEnvoye) {
  const auto imprimante = acces.ParDefaut();
  imprimante->PasseALaPage();
  imprimante->Finit();
  EXPECT_EQ(ServeurImpression::TravauxEnAttente(), 0);
  EXPECT_TRUE(serveur.RienSorti());
}

TEST_F(FilesImprimante, SansSonModuleIlNYAPasDImprimante) {
  const DossierEssai dossier;
  const QString chemin = QString::fromStdString(dossier.chemin().string());
  EXPECT_EQ(AccesImprimanteSysteme(chemin).ParDefaut(), nullptr);
  dossier.Ecrit("imprimante.so", "ceci n'est pas un module");
  EXPECT_EQ(AccesImprimanteSysteme(chemin).ParDefaut(), nullptr);
  std::filesystem::copy_file(DOSSIER_GREFFONS "/generic/libtemoin.so",
                             dossier.chemin() / "imprimante.so",
                             std::filesystem::copy_options::overwrite_existing);
  EXPECT_EQ(AccesImprimanteSysteme(chemin).ParDefaut(), nullptr);
}

}  // namespace
}  // namespace gastrelle::essai
