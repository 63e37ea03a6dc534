// The text box of several lines. What is on display is what can be stored: anything typed or pasted
// is put in composed form at once, and a character that Windows-1252 doesn't hold shows as "?" with
// a beep.
#pragma once

#include <string>
#include <string_view>

#include <QPlainTextEdit>

#include "controles/LimiteTexte.h"

namespace gastrelle {

/// Several lines, with a vertical scroll bar. A line break counts as two characters against the
/// limit; a text set from code is shown whole, whatever the limit.
class ZoneTexte : public QPlainTextEdit {
 public:
  /// `limite` in characters, told as the property `maxLength`; 0: none.
  ZoneTexte(const QString& nom, int limite, QWidget* parent = nullptr);

  /// Shows a text (Windows-1252), the cursor at its head.
  void PoseTexte(std::string_view texte);
  /// The text with CR LF line breaks (Windows-1252).
  [[nodiscard]] std::string Texte() const;

  /// Read-only boxes stay selectable.
  void RendLectureSeule();

 private:
  void Corrige();
  /// Keeps what fits of the text between two positions of the document.
  void CorrigePassage(int debut, int fin);

  int limite_;
  bool parCode_ = false;
  int debutSaisie_ = 0;
  int finSaisie_ = 0;
};

}  // namespace gastrelle
