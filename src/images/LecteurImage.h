// Reads a picture, turned upright, in the size that is asked for, with a bound on what that takes.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QString>

#include "images/FormatsImage.h"

namespace gastrelle {

class LecteurImage {
 public:
  explicit LecteurImage(const QString& fichier);
  /// The bytes of a whole file.
  explicit LecteurImage(const QByteArray& octets);

  /// Answers the size to show, upright, for a picture's own.
  using Place = std::function<QSize(const QSize& taille)>;

  /// Null when there is no such file, when it isn't a regular one, when it holds no picture, or one
  /// that would take too much memory or time; that is told before a pixel is read.
  [[nodiscard]] QImage Lit(const Place& place);
  /// Of the picture that was read, in pixels, upright, before it was made smaller.
  [[nodiscard]] QSize taille() const { return taille_; }

 private:
  std::unique_ptr<QIODevice> source_;
  std::optional<ImageConnue> image_;
  QSize taille_;
};

}  // namespace gastrelle
