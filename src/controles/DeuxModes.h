// A page that works on one of two things: a pair of option buttons, the controls that belong to
// each, what is emptied and who gets the focus when one is chosen.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include <QRadioButton>

namespace gastrelle {

struct Mode {
  std::vector<QWidget*> controles{};  ///< enabled in this mode, disabled in the other
  QWidget* focus = nullptr;           ///< takes the focus when the mode is chosen; null: it stays
  std::vector<QWidget*> vides{};      ///< text boxes, emptied when the mode is chosen
  std::function<void()> surChoix{};   ///< what else the page does, after that
};

/// Modes are counted as their options are, 0 and 1.
class DeuxModes {
 public:
  /// `debut` is the mode at the start: its controls are enabled, nothing else of what a choice
  /// brings is done; none: no option is set, and the mode is the second one.
  DeuxModes(const std::array<QRadioButton*, 2>& options, Mode premier, Mode second,
            std::optional<std::size_t> debut = 1);
  DeuxModes(const DeuxModes&) = delete;
  DeuxModes& operator=(const DeuxModes&) = delete;

  [[nodiscard]] bool premier() const { return options_[0]->isChecked(); }
  /// Allows a mode to be chosen, or not.
  void Permet(std::size_t mode, bool permis) { options_.at(mode)->setEnabled(permis); }
  [[nodiscard]] bool Permis(std::size_t mode) const { return options_.at(mode)->isEnabled(); }
  /// Chooses a mode, as a click would; nothing happens if it is the present one.
  void Choisit(std::size_t mode) { options_.at(mode)->setChecked(true); }
  /// What the choice of the present mode brings.
  void Applique();
  /// The focus to the control of the present mode.
  void RendFocus() const;

 private:
  void PermetControles();
  [[nodiscard]] const Mode& present() const { return modes_[premier() ? 0 : 1]; }

  std::array<QRadioButton*, 2> options_;
  std::array<Mode, 2> modes_;
};

}  // namespace gastrelle
