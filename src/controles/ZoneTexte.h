// The text box of several lines. What is on display is what can be stored: anything typed or pasted
// is transcribed at once, and a character that is lost shows as "?" with a beep.
#pragma once

#include <string>
#include <string_view>

#include <QPlainTextEdit>
#include <QString>
#include <QTextOption>

#include "controles/LimiteTexte.h"
#include "controles/Reprise.h"

namespace gastrelle {

/// Several lines, with a vertical scroll bar. A line break counts as two characters against the
/// limit; a text set from code is shown whole, whatever the limit.
class ZoneTexte : public QPlainTextEdit {
 public:
  /// `limite` in characters, told as the property `maxLength`; 0: none.
  ZoneTexte(const QString& nom, int limite, QWidget* parent = nullptr);

  /// Shows a text (Windows-1252), the cursor at its head. Throws for one that would fill the memory
  /// (`plafondMemoireTexte`).
  void PoseTexte(std::string_view texte);
  /// Shows a text as `PoseTexte` does, in one step that can be undone. Where the box shows that
  /// very text, the cursor alone moves.
  void RemplaceTexte(std::string_view texte);
  /// The text with CR LF line breaks (Windows-1252).
  [[nodiscard]] std::string Texte() const;

  /// Read-only boxes stay selectable.
  void RendLectureSeule();

  [[nodiscard]] Reprise& reprise() { return reprise_; }

 protected:
  void keyPressEvent(QKeyEvent* touche) override;
  void hideEvent(QHideEvent* evenement) override;

 private:
  void CoupeLesLignes(QTextOption::WrapMode ou);
  void Corrige();
  /// Keeps what fits of the text between two positions of the document. It was typed from `saisie`
  /// on: what stands before is never cut.
  void CorrigePassage(int debut, int saisie, int fin);
  /// True for a letter that a full box can't take.
  [[nodiscard]] bool RefuseLettre(const QKeyEvent& touche) const;
  /// True for a box without a limit into which more was pasted than could be shown again.
  [[nodiscard]] bool Deborde(const QString& garde) const;
  /// The characters of `garde` that fit in the place of `avant`, of which the first `acquis` stay.
  [[nodiscard]] QString CeQuiTient(const QString& avant, QString garde, qsizetype acquis) const;

  int limite_;
  Reprise reprise_;
  bool parCode_ = false;
  bool refaisable_ = false;  ///< what was undone could be done again before the present change
  int debutSaisie_ = 0;
  int finSaisie_ = 0;
};

}  // namespace gastrelle
