// Reads a picture from a file, turned upright, in the size that is asked for.
#pragma once

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QString>

namespace gastrelle {

class LecteurImage {
 public:
  explicit LecteurImage(const QString& fichier);

  /// In pixels, upright; invalid if it can't be told before the picture is read.
  [[nodiscard]] QSize taille() const;
  /// Scales to that size, upright, while reading: a photograph never takes its whole memory.
  void Met(const QSize& taille);
  /// Null when there is no such file, when it isn't a regular one, or when it can't be read.
  [[nodiscard]] QImage Lit();

 private:
  [[nodiscard]] QSize Redresse(const QSize& taille) const;

  bool ordinaire_;
  QFile fichier_;
  QImageReader lecteur_;
};

}  // namespace gastrelle
