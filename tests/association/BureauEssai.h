// A desktop of the test's own, whose programs write down what they are given.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

class BureauEssai {
 public:
  /// Becomes the desktop of this process and of those that it starts.
  BureauEssai();

  [[nodiscard]] const std::filesystem::path& chemin() const { return dossier_.chemin(); }
  /// A program that writes down its arguments.
  [[nodiscard]] const std::string& ouvreur() const { return ouvreur_; }

  /// A program for a type of documents, and the line that starts it.
  void Installe(const std::string& nom, const std::string& commande, const std::string& type) const;
  /// Makes the programs known. False if the machine lacks the tool for it.
  [[nodiscard]] bool Publie() const;

  /// The arguments that a program was given, once it has run; none if it doesn't within that time.
  [[nodiscard]] std::vector<std::string> Recus(std::chrono::milliseconds patience) const;

 private:
  DossierEssai dossier_;
  std::string ouvreur_;
};

}  // namespace gastrelle::essai
