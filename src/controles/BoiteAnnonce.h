// The small box at the right end of a logo band that tells how much a catalogue holds.
#pragma once

#include <string_view>

#include <QPlainTextEdit>

namespace gastrelle {

/// As wide and as high as its text, which stands at its right edge, a tone lighter than the texts
/// of the page in whatever palette the desktop has.
class BoiteAnnonce final : public QPlainTextEdit {
 public:
  BoiteAnnonce(const QString& nom, QWidget* parent);

  /// Windows-1252, lines apart by CR LF.
  void PoseTexte(std::string_view texte);

 protected:
  void changeEvent(QEvent* evenement) override;

 private:
  void Ajuste();
  void Teinte();
};

}  // namespace gastrelle
