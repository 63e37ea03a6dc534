// What a picture's file may do to the program: nothing but be refused. The viewer is opened by its
// access key, as the user does.

#include <filesystem>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QElapsedTimer>

#include "doublures/ImagesEnormes.h"
#include "doublures/ProgrammeEssai.h"

namespace gastrelle::essai {
namespace {

class ProgrammeEtImage : public ProgrammeEssai {
 protected:
  void SetUp() override {
    ProgrammeEssai::SetUp();
    if (!IsSkipped()) {
      std::filesystem::create_directory(b.dossier.chemin() / "IMAGE");
      b.AjouteRecette(b.AjouteFamille("Amuses"), "Avec image", "Un texte.", "/photo.png");
      // What is freed is given back at once, also under the sanitizers.
      environnement.insert("ASAN_OPTIONS", "detect_leaks=0:quarantine_size_mb=1");
    }
  }

  [[nodiscard]] std::string Photo() const {
    return (b.dossier.chemin() / "IMAGE" / "photo.png").string();
  }

  /// Asks for the viewer until something answers; how long the answer took, in milliseconds.
  template <class Reponse>
  qint64 DemandeLaVue(Reponse&& reponse) {
    const QString fenetre = FenetreDe(programme);
    avant = PlusDeMemoire(programme);
    QElapsedTimer duree;
    static_cast<void>(QTest::qWaitFor(
        [&] {
          Outil({"windowfocus", "--sync", fenetre});
          duree.start();
          Outil({"key", "alt+m"});
          return QTest::qWaitFor(reponse, 4000) || programme.state() == QProcess::NotRunning;
        },
        patience));
    return duree.elapsed();
  }

  void AttendLeRefus(const char* quoi) {
    Lance(programme);
    const qint64 duree = DemandeLaVue([&] { return !Messages(programme).empty(); });
    ASSERT_EQ(Messages(programme), std::vector<std::string>{"Fichier image | " + Photo() +
                                                            " | non trouvé ou incompatible."})
        << quoi;
    EXPECT_LT(duree, 3000) << quoi;
    EXPECT_LT(PlusDeMemoire(programme) - avant, 300'000'000) << quoi;
  }

  qint64 avant = 0;
};

TEST_F(ProgrammeEtImage, UnTuyauALaPlaceDeLImageNeBloquePas) {
  ASSERT_EQ(::mkfifo(Photo().c_str(), S_IRUSR | S_IWUSR), 0);
  AttendLeRefus("tuyau");
}

TEST_F(ProgrammeEtImage, UnePriseALaPlaceDeLImageNeBloquePas) {
  const int prise = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un adresse{};
  adresse.sun_family = AF_UNIX;
  ASSERT_LT(Photo().size(), sizeof adresse.sun_path);
  Photo().copy(adresse.sun_path, sizeof adresse.sun_path - 1);
  ASSERT_EQ(::bind(prise, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse), 0);
  AttendLeRefus("prise");
  ::close(prise);
}

TEST_F(ProgrammeEtImage, UnAppareilALaPlaceDeLImageNeBloquePas) {
  std::filesystem::create_symlink("/dev/zero", Photo());
  AttendLeRefus("appareil");
}

TEST_F(ProgrammeEtImage, UneVraieImageDe45000PointsDeCoteEstRefuseeToutDeSuite) {
  b.dossier.Ecrit("IMAGE/photo.png", ImagePngEntiere(45'000, 45'000, {}, {8, 2, false}));
  AttendLeRefus("45 000");
}

TEST_F(ProgrammeEtImage, DesTextesQuiGonflentSontRefuses) {
  std::string bombes;
  for (int i = 0; i < 200; ++i) {
    bombes += MorceauPng("zTXt", std::string("k\0\0", 3) + ZerosComprimes(7'900'000));
  }
  b.dossier.Ecrit("IMAGE/photo.png", ImagePngEntiere(100, 60, bombes));
  AttendLeRefus("textes");
}

TEST_F(ProgrammeEtImage, UnMorceauQuiMentSurSaLongueurNePrendPasCetteMemoire) {
  b.dossier.Ecrit("IMAGE/photo.png",
                  TetePng(64, 48) + "\x7F\xFF\xFF\xF0iTXtk" + std::string(200, '\0'));
  AttendLeRefus("longueur");
}

TEST_F(ProgrammeEtImage, UneImageQuiRepasseSansFinEstRefusee) {
  b.dossier.Ecrit("IMAGE/photo.png", ImageJpegEntiere(4000, 4000, 5000));
  AttendLeRefus("passes");
}

TEST_F(ProgrammeEtImage, UneImageEnPassesNePrendPasToutLOrdinateur) {
  b.dossier.Ecrit("IMAGE/photo.png", ImageJpegEntiere(45'000, 40'000, 2));
  AttendLeRefus("passes et taille");
}

TEST_F(ProgrammeEtImage, UnePhotographieDe61MillionsDePointsSAffiche) {
  b.dossier.Ecrit("IMAGE/photo.png", ImageJpegEntiere(9504, 6336));
  Lance(programme);
  const QStringList cherche{"search", "--onlyvisible", "--name", "Visualisateur"};
  DemandeLaVue([&] { return !Outil(cherche).isEmpty(); });
  EXPECT_FALSE(Outil(cherche).isEmpty());
  EXPECT_TRUE(Messages(programme).empty());
  EXPECT_LT(PlusDeMemoire(programme) - avant, 300'000'000);
}

}  // namespace
}  // namespace gastrelle::essai
