// The text boxes. What is on display is what can be stored: anything typed or pasted is put in
// composed form at once, and a character that Windows-1252 doesn't hold shows as "?" with a beep.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include <QLineEdit>
#include <QPlainTextEdit>

#include "data/Texte1252.h"

namespace gastrelle {

inline constexpr int sansLimite = 0;

/// Several lines, with a vertical scroll bar. A line break counts as two characters against the
/// limit; a text set from code is shown whole, whatever the limit.
class ZoneTexte final : public QPlainTextEdit {
 public:
  /// `limite` in characters, told as the property `maxLength`; 0: none.
  ZoneTexte(const QString& nom, int limite, QWidget* parent = nullptr);

  /// Shows a text (Windows-1252), the cursor at its head.
  void PoseTexte(std::string_view texte);
  /// The text with CR LF line breaks (Windows-1252).
  [[nodiscard]] std::string Texte() const;

  /// Read-only boxes look it, and stay selectable.
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

/// One line.
class LigneTexte final : public QLineEdit {
 public:
  LigneTexte(const QString& nom, int limite, QWidget* parent = nullptr);

  void PoseTexte(std::string_view texte);
  [[nodiscard]] std::string Texte() const;
  void RendLectureSeule();

  /// Puts a text in the place of the selection. It is composed before its length counts. Whatever
  /// is pasted comes this way: by the keyboard, the box's own menu or the middle button.
  void Insere(const QString& texte);
  void paste();

 protected:
  void keyPressEvent(QKeyEvent* touche) override;
  void contextMenuEvent(QContextMenuEvent* evenement) override;
  void mouseReleaseEvent(QMouseEvent* evenement) override;

 private:
  void Corrige(const QString& saisi);

  int limite_;
};

/// Takes the blanks off both ends of a box's text, which is set anew: the cursor goes to its start.
template <class Boite>
void RogneTexte(Boite& boite) {
  boite.PoseTexte(std::string(Rogne(boite.Texte())));
}

/// True if a text box (of one line or several) holds nothing.
[[nodiscard]] bool EstVide(const QWidget& boite);

/// Empties text boxes (of one line or several).
void VideBoites(std::span<QWidget* const> boites);

}  // namespace gastrelle
