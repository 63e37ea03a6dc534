#include "fuzz/ImageTiree.h"

#include <stdexcept>

#include <QByteArray>
#include <QElapsedTimer>
#include <QImage>

#include "fuzz/Entree.h"
#include "images/LecteurImage.h"

namespace gastrelle::essai {
namespace {

constexpr qint64 pixelsPermis = qint64{256} * 1024 * 1024;  // bytes, four a pixel

struct Demande {
  std::size_t sorte = 0;
  bool enPetit = false;
  std::uint32_t largeur = 0;
  std::uint32_t hauteur = 0;
};

std::string Fichier(const Demande& demande, Lecteur& suite) {
  if (demande.sorte == octetsTels) {
    return std::string(suite.reste());
  }
  // A whole picture of a size that may be read takes its seconds; one that may not takes none. Of
  // the very largest there is a header only, since the file itself would be large.
  constexpr std::uint64_t pointsLusViteAuPlus = std::uint64_t{1} << 22U;
  constexpr std::uint64_t pointsPermis = pixelsPermis / 4;
  constexpr std::uint64_t pointsEcrits = std::uint64_t{1} << 31U;
  const std::uint64_t points = std::uint64_t{demande.largeur} * demande.hauteur;
  const bool entiere =
      demande.sorte == pngEntiere &&
      (points <= pointsLusViteAuPlus || (points > pointsPermis && points < pointsEcrits));
  std::string octets = entiere ? ImagePngEntiere(demande.largeur, demande.hauteur)
                               : imagesEnormes.at(demande.sorte % imagesEnormes.size())
                                     .octets(demande.largeur, demande.hauteur);
  while (suite.reste().size() > 2) {
    const std::size_t place = suite.Mot() % octets.size();
    octets[place] = static_cast<char>(suite.Octet());
  }
  return octets;
}

void Exige(bool tenue, const char* sinon) {
  if (!tenue) {
    throw std::logic_error(sinon);
  }
}

std::uint32_t Long(Lecteur& lecteur) {
  const std::uint32_t bas = lecteur.Mot();
  return bas | (lecteur.Mot() << 16U);
}

}  // namespace

ImageLue LitImageTiree(std::string_view entree) {
  Lecteur lecteur(entree);
  const unsigned tete = lecteur.Octet();
  Demande demande;
  demande.enPetit = (tete & reduite) != 0;
  demande.sorte = (tete & ~reduite) % nombreSortes;
  demande.largeur = Long(lecteur);
  demande.hauteur = Long(lecteur);
  const std::string octets = Fichier(demande, lecteur);

  constexpr QSize vignette(300, 300);
  QElapsedTimer duree;
  duree.start();
  LecteurImage image(QByteArray::fromRawData(octets.data(), std::ssize(octets)));
  const QImage lue = image.Lit([&](const QSize& taille) {
    return demande.enPetit ? taille.scaled(vignette, Qt::KeepAspectRatio).boundedTo(taille)
                           : taille;
  });
  ImageLue bilan{lue.isNull(), image.taille(), lue.sizeInBytes(), duree.elapsed()};
  if (!bilan.nulle) {
    Exige(qint64{bilan.annoncee.width()} * bilan.annoncee.height() * 4 <= pixelsPermis,
          "une image plus grande que permis");
    Exige(bilan.octets <= pixelsPermis, "des pixels plus nombreux que permis");
    Exige(!demande.enPetit || lue.size().boundedTo(vignette) == lue.size(),
          "une image plus grande que sa place");
  }
  return bilan;
}

std::vector<Graine> GrainesImages() {
  constexpr std::uint32_t petite = 8;
  constexpr std::uint32_t enorme = 45'000;
  const auto entree = [](std::size_t sorte, std::uint32_t cote) {
    const std::string octets = detail::PetitBoutien(cote, 4);
    return static_cast<char>(sorte) + octets + octets;
  };
  std::vector<Graine> graines{
      {"png-entiere-petite", entree(pngEntiere, petite)},
      {"png-entiere-enorme", entree(pngEntiere, enorme)},
      {"png-entiere-reduite", entree(pngEntiere | reduite, 64 * petite)},
      {"octets-aucun", entree(octetsTels, 0)},
      {"octets-png", entree(octetsTels, 0) + ImagePngEntiere(petite, petite)},
  };
  for (std::size_t i = 0; i < imagesEnormes.size(); ++i) {
    const std::string nom = imagesEnormes.at(i).fin;
    graines.push_back({nom + "-petite", entree(i, petite)});
    graines.push_back({nom + "-enorme", entree(i, enorme)});
  }
  return graines;
}

}  // namespace gastrelle::essai
