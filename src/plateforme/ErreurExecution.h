// The one exception of the program: a run-time failure with its number and its text.
#pragma once

#include <exception>
#include <string>

namespace gastrelle {

/// Numbers of the failures. Only a failure outside every guard ever shows its number.
enum class Panne : int {
  appelIncorrect = 5,
  depassement = 6,
  memoireInsuffisante = 7,
  fichierFerme = 52,
  fichierIntrouvable = 53,
  entreeSortie = 57,
  disquePlein = 61,
  numeroEnregistrement = 63,
  permissionRefusee = 70,
  accesFichier = 75,
  cheminIntrouvable = 76,
};

class ErreurExecution : public std::exception {
 public:
  explicit ErreurExecution(Panne panne) : panne_(panne) {}

  [[nodiscard]] Panne panne() const noexcept { return panne_; }
  [[nodiscard]] int numero() const noexcept { return static_cast<int>(panne_); }

  /// What the user reads, as Windows-1252 bytes.
  [[nodiscard]] const char* what() const noexcept override;

  /// "Erreur d'exécution 'N' : " and the text, as Windows-1252 bytes.
  [[nodiscard]] std::string Rapport() const;

 private:
  Panne panne_;
};

/// The failure that stands for an error number of the system: `errno`, on Windows `GetLastError()`.
Panne PanneDuSysteme(int codeErrno) noexcept;

/// Runs a step. False if it failed, wherever it stopped.
template <class Etape>
[[nodiscard]] bool Reussit(Etape&& etape) {
  try {
    etape();
    return true;
  } catch (const ErreurExecution&) {
    return false;
  }
}

/// Runs a step whose failure counts for nothing: the next one is tried all the same.
template <class Etape>
void PasseOutre(Etape&& etape) {
  static_cast<void>(Reussit(etape));
}

}  // namespace gastrelle
