// Typing ahead in a list: the letters typed so far, and the entry that they lead to.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include <QElapsedTimer>
#include <QString>

#include "data/Collation.h"

namespace gastrelle {

class RechercheListe {
 public:
  /// `memoire`: how long typed letters wait for the next one.
  explicit RechercheListe(std::chrono::milliseconds memoire = std::chrono::milliseconds(1500))
      : memoire_(memoire) {}

  /// Takes what a key typed and answers the index of the entry that all letters together lead to:
  /// the first one whose title begins with them, otherwise the first one with a word that does.
  /// Base letters are compared, so that "boeuf" finds "Bœuf". The search goes from the entry at
  /// `courante` (-1: none) down and round; a single letter, typed once or again and again, leads
  /// to the next entry each time. Nothing if no entry fits.
  std::optional<int> Trouve(const Liste& entrees, int courante, const QString& tape);

 private:
  void Retient(const std::string& lettres);

  std::chrono::milliseconds memoire_;
  QElapsedTimer derniereTouche_;
  std::string tapees_;     ///< base letters
  std::string touche_;     ///< what the first key gave
  bool uneSeule_ = false;  ///< no other key was typed since
};

}  // namespace gastrelle
