// Pictures as files: what is read, in which size, and what is refused before a pixel is made.

#include <ctime>

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/ImagesEnormes.h"
#include "images/FormatsImage.h"
#include "images/LecteurImage.h"

namespace gastrelle::essai {
namespace {

/// What the processor has worked since then: other programs of the machine don't count.
double Secondes(std::clock_t depuis) {
  return static_cast<double>(std::clock() - depuis) / CLOCKS_PER_SEC;
}

class LectureDImages : public testing::Test {
 protected:
  [[nodiscard]] QString Chemin(const char* nom) const {
    return QString::fromStdString((dossier.chemin() / nom).string());
  }

  QImage Lit(const char* nom, const QSize& place = {360, 480}) {
    LecteurImage lecteur(Chemin(nom));
    QImage image = lecteur.Lit([&](const QSize& naturelle) {
      return naturelle.boundedTo(place) == naturelle ? naturelle
                                                     : naturelle.scaled(place, Qt::KeepAspectRatio);
    });
    taille = lecteur.taille();
    return image;
  }

  /// True if a file of these bytes is refused, and at once.
  bool Refuse(const std::string& octets) {
    dossier.Ecrit("image", octets);
    const std::clock_t debut = std::clock();
    const bool nulle = Lit("image").isNull();
    EXPECT_LT(Secondes(debut), 1.5);
    return nulle;
  }

  DossierEssai dossier;
  QSize taille;
};

TEST_F(LectureDImages, UnCoteQueRienNeMesureEstRefuse) {
  for (const std::uint32_t cote : {0x7FFFFFFFU, 0x80000000U, 0x80000001U}) {
    EXPECT_TRUE(Refuse(ImageBmp(2, cote))) << cote;
    EXPECT_TRUE(Refuse(ImageBmp(cote, 2))) << cote;
  }
}

/// The place of a field in `ImageTiff`, counted from 0, and of its value.
constexpr std::size_t ChampTiff(std::size_t champ) {
  return 10 + 12 * champ;
}

TEST_F(LectureDImages, UneBandeComprimeeCompteAvecCeQuElleTientDansLeFichier) {
  std::string octets = ImageTiff(6200, 6200);
  octets.replace(ChampTiff(3) + 8, 2, "\x05\x80");  // runs of bytes
  octets.replace(ChampTiff(8) + 8, 4, "\x80\xB2\xE6\x0E");
  dossier.Ecrit("image", octets);
  std::filesystem::resize_file(dossier.chemin() / "image", 250'000'300);
  EXPECT_TRUE(Lit("image").isNull());
}

TEST_F(LectureDImages, UnChampDontLaLongueurNEstPasConnueEstRefuse) {
  for (const char genre : {'\x0E', '\x10', '\x12'}) {
    std::string octets = ImageTiff(20, 20);
    QBuffer tampon;
    tampon.setData(octets.data(), static_cast<int>(octets.size()));
    ASSERT_TRUE(tampon.open(QIODevice::ReadOnly));
    EXPECT_TRUE(ReconnaitImage(tampon).has_value());
    octets[ChampTiff(7) + 2] = genre;
    QBuffer inconnu;
    inconnu.setData(octets.data(), static_cast<int>(octets.size()));
    ASSERT_TRUE(inconnu.open(QIODevice::ReadOnly));
    EXPECT_FALSE(ReconnaitImage(inconnu).has_value()) << static_cast<int>(genre);
  }
}

struct Ecriture {
  const char* nom;
  const char* genre;
  QImage::Format format;
};

void PrintTo(const Ecriture& ecriture, std::ostream* sortie) {
  *sortie << ecriture.nom;
}

class LectureParFormat : public LectureDImages, public testing::WithParamInterface<Ecriture> {};

TEST_P(LectureParFormat, ReduitSansRienDeplacer) {
  if (!QImageReader::supportedImageFormats().contains(QByteArray(GetParam().genre).toLower())) {
    GTEST_SKIP() << "il manque le format";
  }
  QImage image(3001, 1003, QImage::Format_RGB32);
  image.fill(Qt::white);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      image.setPixel(x, y, x < 1500 ? qRgb(0, 0, 0) : y < 500 ? qRgb(200, 200, 200) : ~0U);
    }
  }
  QImageWriter ecriture(Chemin("image"), GetParam().genre);
  ASSERT_TRUE(ecriture.write(image.convertToFormat(GetParam().format)));
  for (const QSize& place : {QSize(300, 300), QSize(60, 2000), QSize(4000, 100), QSize(5, 5)}) {
    const QSize attendue = QSize(3001, 1003).scaled(place, Qt::KeepAspectRatio).expandedTo({1, 1});
    const QImage lue = Lit("image", place);
    ASSERT_EQ(lue.size(), attendue);
    EXPECT_EQ(taille, QSize(3001, 1003));
    const auto gris = [&](double x, double y) {
      return qGray(
          lue.pixel(static_cast<int>(x * lue.width()), static_cast<int>(y * lue.height())));
    };
    EXPECT_NEAR(gris(0.2, 0.2), 0, 8) << place.width();
    EXPECT_NEAR(gris(0.2, 0.9), 0, 8) << place.width();
    EXPECT_NEAR(gris(0.85, 0.1), lue.height() > 1 ? 200 : 228, 60) << place.width();
    EXPECT_NEAR(gris(0.85, 0.95), 255, 60) << place.width();
  }
}

INSTANTIATE_TEST_SUITE_P(Image, LectureParFormat,
                         testing::Values(Ecriture{"couleurs", "PNG", QImage::Format_RGB32},
                                         Ecriture{"opacite", "PNG", QImage::Format_ARGB32},
                                         Ecriture{"gris", "PNG", QImage::Format_Grayscale8},
                                         Ecriture{"palette", "PNG", QImage::Format_Indexed8},
                                         Ecriture{"seize", "PNG", QImage::Format_RGBX64},
                                         Ecriture{"jpeg", "JPEG", QImage::Format_RGB32},
                                         Ecriture{"jpegGris", "JPEG", QImage::Format_Grayscale8},
                                         Ecriture{"bmp", "BMP", QImage::Format_RGB32},
                                         Ecriture{"bmpPalette", "BMP", QImage::Format_Indexed8},
                                         Ecriture{"tiff", "TIFF", QImage::Format_RGB32},
                                         Ecriture{"webp", "WEBP", QImage::Format_RGB32}),
                         [](const auto& essai) { return std::string(essai.param.nom); });

TEST_F(LectureDImages, LOpaciteReste) {
  QImage image(3000, 3000, QImage::Format_RGBA64);
  image.fill(QColor(255, 0, 0, 128));
  ASSERT_TRUE(image.save(Chemin("image"), "PNG"));
  const QImage lue = Lit("image");
  EXPECT_NEAR(qAlpha(lue.pixel(180, 180)), 128, 2);
}

TEST_F(LectureDImages, LaTailleDitePlusGrandeQueLaMemoireEstRefuseeDeToutFormat) {
  for (const GenreImage& genre : imagesEnormes) {
    EXPECT_TRUE(Refuse(genre.octets(45'000, 45'000))) << genre.fin;
    EXPECT_TRUE(Refuse(genre.octets(0xFFFFFFFF, 0xFFFFFFFF))) << genre.fin;
    EXPECT_TRUE(Refuse(genre.octets(0, 0))) << genre.fin;
  }
}

TEST_F(LectureDImages, UneVraieImageDUnBitCompteQuatreOctetsParPoint) {
  EXPECT_TRUE(Refuse(ImagePngEntiere(45'000, 45'000)));
  EXPECT_TRUE(Refuse(ImagePngEntiere(8192, 8193)));
  EXPECT_FALSE(Refuse(ImagePngEntiere(8192, 8192)));
  EXPECT_EQ(taille, QSize(8192, 8192));
}

TEST_F(LectureDImages, UnePhotographieDe61MillionsDePointsSAffiche) {
  EXPECT_FALSE(Refuse(ImageJpegEntiere(9504, 6336)));
  EXPECT_EQ(taille, QSize(9504, 6336));
}

TEST_F(LectureDImages, EnPlusieursPassesElleCompteCeQuiLesReunit) {
  EXPECT_TRUE(Refuse(ImageJpegEntiere(9504, 6336, 10)));
  EXPECT_FALSE(Refuse(ImageJpegEntiere(6000, 4000, 10)));
}

TEST_F(LectureDImages, UneImageQuiRepasseSansFinEstRefusee) {
  EXPECT_TRUE(Refuse(ImageJpegEntiere(4000, 4000, 2000)));
  EXPECT_FALSE(Refuse(ImageJpegEntiere(400, 400, 20)));
}

TEST_F(LectureDImages, UnPanoramaSeReduitAussi) {
  dossier.Ecrit("image", ImageJpegEntiere(60'001, 1000));
  EXPECT_EQ(Lit("image", {1000, 700}).size(), QSize(1000, 16));
  dossier.Ecrit("image", ImagePngEntiere(199'000, 300));
  EXPECT_EQ(Lit("image").size(), QSize(360, 1));
  EXPECT_TRUE(Refuse(ImagePngEntiere(67'000'000, 1)));
}

TEST_F(LectureDImages, LesTextesDUnPngComptentEtUnProfilPasse) {
  const std::string bombe = MorceauPng("zTXt", std::string("k\0\0", 3) + ZerosComprimes(7'900'000));
  std::string bombes;
  for (int i = 0; i < 20; ++i) {
    bombes += bombe;
  }
  EXPECT_FALSE(Refuse(ImagePngEntiere(10, 10, bombe)));
  EXPECT_TRUE(Refuse(ImagePngEntiere(10, 10, bombes)));
  EXPECT_FALSE(Refuse(ImagePngEntiere(
      10, 10, MorceauPng("iTXt", std::string("k\0\0\0\0\0", 6) + std::string(100'000, 'a')))));
  EXPECT_FALSE(Refuse(ImagePngEntiere(10, 10, MorceauPng("prVt", ZerosComprimes(90'000'000)))));
  std::string vides;
  for (int i = 0; i < 200'000; ++i) {
    vides += MorceauPng("IDAT", {});
  }
  EXPECT_TRUE(Refuse(ImagePngEntiere(10, 10, vides)));
}

TEST_F(LectureDImages, LesTextesDUnJpegComptentAussi) {
  const std::string image = ImageJpegEntiere(16, 16);
  const std::string commentaire = detail::SegmentJpeg(0xFE, std::string(65'000, 'a'));
  std::string textes;
  for (int i = 0; i < 1000; ++i) {
    textes += commentaire;
  }
  const auto avec = [&](const std::string& segments) {
    return image.substr(0, 2) + segments + image.substr(2);
  };
  EXPECT_FALSE(Refuse(avec(commentaire)));
  EXPECT_TRUE(Refuse(avec(textes)));
  EXPECT_TRUE(Refuse("\xFF\xD8" + std::string(1'000'000, '\xFF')));
  EXPECT_TRUE(Refuse("\xFF\xD8" + std::string(1'000'000, 'a')));
}

TEST_F(LectureDImages, UneIconeNestPasPlusGrandeDedans) {
  const auto icone = [](const std::string& dedans) {
    return std::string("\0\0\1\0\1\0\0\0\0\0\1\0\x20\0", 14) +
           detail::PetitBoutien(dedans.size(), 4) + detail::PetitBoutien(22, 4) + dedans;
  };
  EXPECT_FALSE(Refuse(icone(ImagePngEntiere(256, 256))));
  EXPECT_TRUE(Refuse(icone(ImagePngEntiere(8000, 8000))));
  EXPECT_TRUE(Refuse(ImageIco(2000, 2000)));
}

TEST_F(LectureDImages, UnFichierTropGrandNestPasLu) {
  dossier.Ecrit("image", TetePng(100, 100));
  std::filesystem::resize_file(dossier.chemin() / "image", std::uintmax_t{2} << 30U);
  const std::clock_t debut = std::clock();
  EXPECT_TRUE(Lit("image").isNull());
  EXPECT_LT(Secondes(debut), 0.5);
}

TEST_F(LectureDImages, CoupeNImporteOuUnFichierNArretePersonne) {
  for (const GenreImage& genre : imagesEnormes) {
    const std::string entiere = genre.octets(64, 48);
    for (std::size_t fin = 0; fin <= entiere.size(); ++fin) {
      dossier.Ecrit("image", std::string_view(entiere).substr(0, fin));
      static_cast<void>(Lit("image"));
    }
  }
}

}  // namespace
}  // namespace gastrelle::essai
