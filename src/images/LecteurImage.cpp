#include "images/LecteurImage.h"

#include <algorithm>
#include <utility>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QTransform>

#include "images/ReductionImage.h"
#include "plateforme/FichierOrdinaire.h"

namespace gastrelle {
namespace {

QSize Redresse(const QSize& taille, QImageIOHandler::Transformations tour) {
  return tour.testFlag(QImageIOHandler::TransformationRotate90) ? taille.transposed() : taille;
}

QImage Redresse(QImage image, QImageIOHandler::Transformations tour) {
  constexpr int quartDeTour = 90;
  image = std::move(image).mirrored(tour.testFlag(QImageIOHandler::TransformationMirror),
                                    tour.testFlag(QImageIOHandler::TransformationFlip));
  return tour.testFlag(QImageIOHandler::TransformationRotate90)
             ? image.transformed(QTransform().rotate(quartDeTour))
             : image;
}

double Points(const QSize& taille) {
  return static_cast<double>(taille.width()) * taille.height();
}

/// By how many eighths of its size a picture is still no smaller than asked for.
QSize EnHuitiemes(const MesureImage& mesure, const QSize& voulue) {
  constexpr int tous = 8;
  const QSize& taille = mesure.taille;
  const int huitiemes = std::max((voulue.width() * tous + taille.width() - 1) / taille.width(),
                                 (voulue.height() * tous + taille.height() - 1) / taille.height());
  const QSize lue(taille.width() * huitiemes / tous, taille.height() * huitiemes / tous);
  // Where a side is no whole number of eighths, the toolkit holds what it read beside what it
  // gives.
  return huitiemes < tous && SeTient(mesure, 2 * Points(lue)) ? lue.expandedTo({1, 1}) : taille;
}

/// The toolkit makes a picture of colours smaller row by row, with several rows at hand.
QSize EnRangees(const MesureImage& mesure, const QSize& voulue) {
  constexpr int rangeeAuPlus = 65'536;
  return mesure.taille.width() <= rangeeAuPlus ? mesure.taille.boundedTo(voulue) : mesure.taille;
}

/// The size in which the toolkit reads a picture.
QSize TailleLue(const MesureImage& mesure, const QSize& voulue) {
  switch (mesure.reduction) {
    case Reduction::parHuitiemes:
      return EnHuitiemes(mesure, voulue);
    case Reduction::parRangees:
      return EnRangees(mesure, voulue);
    case Reduction::aucune:
      break;
  }
  return mesure.taille;
}

QImage Decode(QImageReader& lecteur, const MesureImage& mesure, const QSize& voulue) {
  // The toolkit's own bound: what a format hides from the measure isn't read either.
  QImageReader::setAllocationLimit(static_cast<int>(pointsAuPlus / megaOctet));
  const QSize lue = TailleLue(mesure, voulue);
  if (!SeTient(mesure, Points(lue))) {
    return {};
  }
  if (lue != mesure.taille) {
    lecteur.setScaledSize(lue);
  }
  return lecteur.read();
}

}  // namespace

LecteurImage::LecteurImage(const QString& fichier) {
  const int numero = OuvreFichierOrdinaire(fichier.toStdU16String());
  if (numero < 0) {
    return;
  }
  // A look at some bytes here and there reads no more than these.
  QFile sonde;
  sonde.open(numero, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::DontCloseHandle);
  image_ = ReconnaitImage(sonde);
  sonde.seek(0);
  // An open file, not a name: the reader would also try a name with other endings behind it.
  auto source = std::make_unique<QFile>();
  source->open(numero, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
  source_ = std::move(source);
}

LecteurImage::LecteurImage(const QByteArray& octets) {
  auto source = std::make_unique<QBuffer>();
  source->setData(octets);
  source->open(QIODevice::ReadOnly);
  image_ = ReconnaitImage(*source);
  source->seek(0);
  source_ = std::move(source);
}

QImage LecteurImage::Lit(const Place& place) {
  if (!image_) {
    return {};
  }
  QImageReader lecteur(source_.get(), image_->format);
  lecteur.setAutoTransform(false);
  const QImageIOHandler::Transformations tour = lecteur.transformation();
  const auto voulue = [&](const QSize& taille) {
    taille_ = Redresse(taille, tour);
    return Redresse(place(taille_).expandedTo({1, 1}), tour);
  };
  const QSize dite = image_->mesure.taille;
  const QSize premiere = voulue(dite);
  QImage image = Decode(lecteur, image_->mesure, premiere);
  if (image.isNull()) {
    return {};
  }
  const bool telle = image_->mesure.reduction != Reduction::aucune || image.size() == dite;
  const QSize derniere = telle ? premiere : voulue(image.size());
  return Redresse(Reduit(std::move(image), derniere), tour);
}

}  // namespace gastrelle
