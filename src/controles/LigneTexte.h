// The text box of one line. What is on display is what can be stored, as in a ZoneTexte.
#pragma once

#include <string>
#include <string_view>

#include <QLineEdit>

#include "controles/LimiteTexte.h"

namespace gastrelle {

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

}  // namespace gastrelle
