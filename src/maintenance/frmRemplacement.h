// The dialog of whatever replaces all recipes: two confirmations, then the work and its result.
#pragma once

#include <array>

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include "controles/Cadre.h"
#include "maintenance/Remplacement.h"

namespace gastrelle {

/// What is peculiar to one of the two dialogs, as data.
struct DescriptionRemplacement {
  const char* nom;        ///< objectName
  const char16_t* titre;  ///< caption, behind the application title
  const char* sujetAide;
  std::array<const char16_t*, 2> demandes;  ///< the first and the second question
  const char16_t* fin;                      ///< once it is done
  const char16_t* refus;                    ///< with a single recipe; null: it may be replaced too
  FabriqueRecettes fabrique;
};

class frmRemplacement : public QDialog {
 public:
  frmRemplacement(Module1& module, Cadre& cadre, const DescriptionRemplacement& description,
                  QWidget* parent);

  /// Leaves what was asked as it is; at the end, as `cmdFin` does. Nothing in between.
  void reject() override;

 private:
  QWidget* ComposeAccord();
  QWidget* ComposeEfface();
  void PoseImage(QStyle::StandardPixmap image);
  void Demande();
  void Refuse();
  void Accepte();
  void Remplace();
  void Conclut(const QString& resultat, const QString& bouton);

  Module1& module_;
  Cadre& cadre_;
  const DescriptionRemplacement& description_;
  QLabel* image_;
  std::array<QLabel*, 2> Label1_{};
  std::array<QLabel*, 2> Label2_{};
  QPushButton* cmdOui_;
  QPushButton* cmdNon_;
  QPushButton* cmdAide_;
  QPushButton* cmdFin_;
  QWidget* FrameAccord_;
  QWidget* FrameEfface_;
  QElapsedTimer depuis_;  ///< since `cmdOui` was last pressed
};

}  // namespace gastrelle
