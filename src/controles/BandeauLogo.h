// The band at the head of a page, or of a window without tabs: its logo, its heading, and at its
// right end what the catalogue counts.
#pragma once

#include <string_view>

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include "controles/BoiteAnnonce.h"

namespace gastrelle {

class BandeauLogo final : public QWidget {
 public:
  /// `logo`: name of a picture. The tooltip is the logo's.
  BandeauLogo(const char* logo, const QString& entete, const QString& infobulle, QWidget* parent);

  [[nodiscard]] QString entete() const { return entete_->text(); }

  /// A line of text under the heading.
  void AjouteLigne(const QString& texte);
  /// The box that tells a number, empty at first.
  void AjouteAnnonce(const QString& nom);
  /// What the box tells, Windows-1252. There must be one.
  void PoseAnnonce(std::string_view texte) { annonce_->PoseTexte(texte); }

  /// Gives way where the page that it heads, laid out in a column, has a place of that size (in
  /// pixels) and the band would leave its controls hardly more height than they need, or be too
  /// wide itself; comes back with the room.
  void TientDans(const QSize& place);

 private:
  QVBoxLayout* titres_;
  QLabel* entete_;
  BoiteAnnonce* annonce_ = nullptr;
};

}  // namespace gastrelle
