// A drop-down list that accepts no typing, over the one list model. As long as it is closed nothing
// but the program changes its choice: keys open it and work inside, the wheel passes it by.
#pragma once

#include <functional>

#include <QComboBox>

#include "controles/VueListe.h"

namespace gastrelle {

class ComboListe final : public QComboBox {
 public:
  ComboListe(const QString& nom, Ordre ordre, QWidget* parent = nullptr);

  /// Runs at every choice, the user's and the program's, also when the same entry is chosen again.
  std::function<void()> surChoix;

  /// Chooses an entry from code and fires `surChoix`. An index outside the list chooses nothing.
  void Choisit(int indice);
  /// Chooses the entry that bears `numero`; raises error 53 if none does.
  void ChoisitNumero(std::int32_t numero);
  /// Chooses without firing: for lists whose choice has no event.
  void Montre(int indice);

  void Ajoute(Liste nouvelles);
  int Ajoute(const EntreeListe& entree);
  void Vide();

  [[nodiscard]] const Liste& entrees() const { return modele_.entrees(); }
  [[nodiscard]] ModeleListe& modele() { return modele_; }

  /// Index of the first entry that bears `numero`; raises error 53 if none does.
  [[nodiscard]] int IndiceDe(std::int32_t numero) const;
  /// True if an entry, but for the one at `sauf`, reads like `texte`, case and outer blanks
  /// ignored.
  [[nodiscard]] bool ContientTexte(std::string_view texte, int sauf = -1) const;

  /// Item data of the chosen entry; a failure when there is none.
  [[nodiscard]] std::int32_t NumeroChoisi() const;
  /// Text of the chosen entry, Windows-1252 and trimmed as all names are; empty when there is none.
  [[nodiscard]] std::string Texte() const;

  /// The title of the closed list if it is too narrow for it, else nothing.
  [[nodiscard]] QString TitreAbrege() const;

  /// Opens the list, whose view is made the first time.
  void showPopup() override;

 protected:
  bool event(QEvent* evenement) override;
  void keyPressEvent(QKeyEvent* touche) override;
  void wheelEvent(QWheelEvent* evenement) override;

 private:
  void FaitVue();
  /// As wide as the longest title asks for, up to the screen.
  void ElargitVue();

  ModeleListe modele_;
  VueListe* vue_ = nullptr;
};

}  // namespace gastrelle
