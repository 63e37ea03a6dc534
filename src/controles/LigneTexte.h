// The text box of one line. What is on display is what can be stored, as in a ZoneTexte.
#pragma once

#include <string>
#include <string_view>

#include <QLineEdit>
#include <QString>

#include "controles/LimiteTexte.h"
#include "controles/Reprise.h"
#include "controles/Transcription.h"

namespace gastrelle {

class LigneTexte final : public QLineEdit {
 public:
  LigneTexte(const QString& nom, int limite, QWidget* parent = nullptr);

  void PoseTexte(std::string_view texte);
  /// Shows a text as `PoseTexte` does, in one step that can be undone. Where the box shows that
  /// very text, the cursor alone moves.
  void RemplaceTexte(std::string_view texte);
  [[nodiscard]] std::string Texte() const;
  void RendLectureSeule();
  /// The box holds the path of a file: its characters aren't written otherwise.
  void RendChemin();

  [[nodiscard]] Reprise& reprise() { return reprise_; }

  /// Puts a text in the place of the selection, in an undo step of its own. It is transcribed
  /// before its length counts. Whatever is pasted comes this way: by the keyboard, the box's own
  /// menu or the middle button.
  void Insere(const QString& texte);
  void paste();

 protected:
  void keyPressEvent(QKeyEvent* touche) override;
  void inputMethodEvent(QInputMethodEvent* evenement) override;
  void contextMenuEvent(QContextMenuEvent* evenement) override;
  void mouseReleaseEvent(QMouseEvent* evenement) override;

 private:
  /// What comes by another way than `Insere`: dropped by the mouse, say.
  void Corrige(const QString& saisi);
  /// A passage as the box keeps it, with a beep for what is lost.
  [[nodiscard]] QString Garde(const QString& passage) const;
  /// What follows isn't undone together with what was done last.
  void Separe();

  int limite_;
  Transcription (*transcrit_)(const QString&) = Transcrit;
  Reprise reprise_;
  QString montre_;  ///< on display before the present change
  QString donne_;   ///< set from code, and right as it is
};

}  // namespace gastrelle
