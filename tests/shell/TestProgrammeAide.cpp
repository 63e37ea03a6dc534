// The help key of the running program, whatever lies in the place of the help file.

#include <filesystem>
#include <sys/stat.h>

#include <QElapsedTimer>

#include "doublures/ProgrammeEssai.h"

namespace gastrelle::essai {
namespace {

class ProgrammeEtAide : public ProgrammeEssai {
 protected:
  [[nodiscard]] std::filesystem::path Fichier() const { return b.dossier.chemin() / "gl32.hlp"; }

  void AttendLeMessage(const char* attendu) {
    environnement.insert("ASAN_OPTIONS", "detect_leaks=0:quarantine_size_mb=1");
    Lance(programme);
    const QString fenetre = FenetreDe(programme);
    const qint64 avant = PlusDeMemoire(programme);
    QElapsedTimer duree;
    static_cast<void>(QTest::qWaitFor(
        [&] {
          Outil({"windowfocus", "--sync", fenetre});
          duree.start();
          Outil({"key", "F1"});
          return QTest::qWaitFor([&] { return !Messages(programme).empty(); }, 4000);
        },
        patience));
    EXPECT_LT(duree.elapsed(), 3000);
    EXPECT_EQ(Messages(programme), std::vector<std::string>{attendu});
    EXPECT_LT(PlusDeMemoire(programme) - avant, 300'000'000);
  }
};

TEST_F(ProgrammeEtAide, UnGigaOctetDeZerosEstRefuseAussitot) {
  b.dossier.Ecrit("gl32.hlp", "");
  std::filesystem::resize_file(Fichier(), std::uintmax_t{1} << 30U);
  AttendLeMessage("Fichier d'aide illisible ou incomplet");
}

TEST_F(ProgrammeEtAide, JusteSousLaLimiteLaMemoireResteBornee) {
  b.dossier.Ecrit("gl32.hlp", "");
  std::filesystem::resize_file(Fichier(), std::uintmax_t{64} << 20U);
  AttendLeMessage("Fichier d'aide illisible ou incomplet");
}

TEST_F(ProgrammeEtAide, UnTuyauNEstPasAttendu) {
  ASSERT_EQ(::mkfifo(Fichier().c_str(), S_IRUSR | S_IWUSR), 0);
  AttendLeMessage("Fichier introuvable");
}

TEST_F(ProgrammeEtAide, UnAppareilNEstPasLu) {
  std::filesystem::create_symlink("/dev/zero", Fichier());
  AttendLeMessage("Fichier introuvable");
}

}  // namespace
}  // namespace gastrelle::essai
