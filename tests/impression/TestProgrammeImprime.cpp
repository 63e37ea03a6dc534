// The program itself prints, and loads what prints when it prints for the first time.

#include <filesystem>

#include <QFile>
#include <gmock/gmock.h>

#include "doublures/ProgrammeEssai.h"
#include "impression/PagesLues.h"
#include "impression/ServeurImpression.h"

namespace gastrelle::essai {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string Bibliotheques(const QProcess& processus) {
  QFile cartes(QStringLiteral("/proc/%1/maps").arg(processus.processId()));
  EXPECT_TRUE(cartes.open(QIODevice::ReadOnly));
  return cartes.readAll().toStdString();
}

class ProgrammeImprime : public ProgrammeEssai {
 protected:
  void SetUp() override {
    ProgrammeEssai::SetUp();
    if (!IsSkipped()) {
      std::filesystem::copy_file(DOSSIER_PROGRAMME "/imprimante.so",
                                 b.dossier.chemin() / "imprimante.so");
    }
  }

  ServeurImpression serveur;
};

TEST_F(ProgrammeImprime, EtNeChargeCeQuIlFautQuALaPremiereImpression) {
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  EXPECT_THAT(Bibliotheques(programme), AllOf(Not(HasSubstr("PrintSupport")),
                                              Not(HasSubstr("libcups")), HasSubstr("libQt6Gui")));
  Outil({"windowfocus", "--sync", fenetre});
  Outil({"key", "ctrl+p"});
  const DocumentLu lu = LitDocument(serveur.Sortie(1));
  EXPECT_EQ(lu.pages, 1);
  ASSERT_FALSE(lu.lignes.empty());
  EXPECT_THAT(lu.lignes.front().texte.toStdString(),
              testing::StartsWith("Gastrelle 2005 (Edition du "));
  EXPECT_THAT(Bibliotheques(programme),
              AllOf(HasSubstr("imprimante.so"), HasSubstr("PrintSupport"), HasSubstr("libcups")));
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_THAT(Messages(programme), testing::IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
