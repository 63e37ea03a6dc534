// A list box of one choice, over the one list model.
#pragma once

#include <functional>

#include "controles/VueListe.h"

namespace gastrelle {

class ListeChoix final : public VueListe {
 public:
  ListeChoix(const QString& nom, Ordre ordre, QWidget* parent = nullptr);

  /// Runs when the choice moves to another entry, by the user or the program.
  std::function<void()> surChoix;
  /// Runs on a double click on an entry, and on Return on the chosen one.
  std::function<void()> surDoubleClic;

  /// Chooses an entry from code. An index outside the list chooses nothing.
  void Choisit(int indice);

  void Ajoute(Liste nouvelles) { modele_.Ajoute(std::move(nouvelles)); }
  void Vide() { modele_.Vide(); }

  [[nodiscard]] const Liste& entrees() const { return modele_.entrees(); }
  /// Index of the chosen entry, -1 for none.
  [[nodiscard]] int indice() const { return currentIndex().row(); }
  /// Item data of the chosen entry; a failure when there is none.
  [[nodiscard]] std::int32_t NumeroChoisi() const;

 protected:
  void keyPressEvent(QKeyEvent* touche) override;
  void currentChanged(const QModelIndex& courant, const QModelIndex& precedent) override;

 private:
  ModeleListe modele_;
};

}  // namespace gastrelle
