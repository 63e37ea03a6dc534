// The program's own picture viewer: the picture of the recipe on display, closed by a click on it.
#pragma once

#include <string>

#include <QDialog>
#include <QLabel>
#include <QToolBar>

#include "data/Module1.h"

namespace gastrelle {

class frmImage final : public QDialog {
 public:
  /// `chemin`: complete path of the picture, Windows-1252. Nothing is loaded outside the recipes'
  /// list tab. A file that is missing or can't be decoded is told when the window is shown, which
  /// then goes away.
  frmImage(Module1& module, std::string chemin, QWidget* parent);

 protected:
  void showEvent(QShowEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void BatitBarre();
  QLabel* CreeVue(const char* nom);
  void Charge();
  void Montre(QLabel* vue, const QImage& image, const QSize& taille, const QSize& naturelle);
  void SurActivation();
  [[nodiscard]] bool SurLaListe() const;
  /// The screen's size and the toolbar's height, in the pixels that its glass has.
  [[nodiscard]] QSize Verre() const;
  [[nodiscard]] int HauteurBarre() const;
  /// Sizes of pictures are in those pixels too.
  [[nodiscard]] bool TropGrande(const QSize& image) const;

  Module1& module_;
  const std::string chemin_;
  QToolBar* tbToolbar_;
  QLabel* Picture1_;
  QLabel* Image1_;
  QLabel* lblLegende_;
  bool echec_ = false;
};

}  // namespace gastrelle
