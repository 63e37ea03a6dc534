// Two option buttons side by side, of which one is set, with a name for what they choose.
#pragma once

#include <array>

#include <QRadioButton>

namespace gastrelle {

/// Nothing is drawn around them; screen readers tell a group of that name.
class GroupeOptions final : public QWidget {
 public:
  /// The options are named `nom` with their index.
  GroupeOptions(const QString& nom, const std::array<QString, 2>& titres, const QString& choix,
                QWidget* parent);

  [[nodiscard]] const std::array<QRadioButton*, 2>& options() const { return options_; }

 private:
  /// The Tab key stops at the option that is set, or at the first one: a blank typed there changes
  /// nothing.
  void RegleEntree();

  std::array<QRadioButton*, 2> options_;
};

}  // namespace gastrelle
