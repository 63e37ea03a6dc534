// A real folder seen through a disk that keeps a journal of every call and fails where a test asks.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "plateforme/Disque.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {

/// How a call fails: with an error and nothing done, or, for a write, with half of the bytes
/// written.
enum class Maniere { rienFait, moitieEcrite };

class DisqueEssai final : public AccesFichiers {
 public:
  explicit DisqueEssai(const std::filesystem::path& dossier) : disque_(dossier) {}

  /// One line a call, in order: "existe GLR1.DAT", "dossier? IMAGE", "ailleurs? /x.png",
  /// "ouvre GLR1.DAT", "lit GLR1.DAT 0+130", "écrit GLR1.DAT 130+130", "longueur GLR1.DAT",
  /// "copie GLR1.stp GLR1.DAT", "supprime X", "renomme X Y", "crée IMAGE", "enlève SAUVE",
  /// "consulte X" (opened for reading alone), "crée X" (a file as well), "synchronise X",
  /// "synchronise TEMP/" (the names of a folder), "énumère TEMP".
  /// Offsets count from 0.
  [[nodiscard]] const std::vector<std::string>& journal() const { return journal_; }
  /// The lines that begin with "écrit", "copie", "supprime", "renomme", "crée" or "enlève".
  [[nodiscard]] std::vector<std::string> changements() const;
  void OublieJournal() { journal_.clear(); }

  /// The n-th call from now on (1: the next one) fails.
  void EchoueALAppel(std::size_t n, Panne panne, Maniere maniere = Maniere::rienFait);
  /// The n-th write to a file from now on (1: the next one) fails.
  void EchoueALaNiemeEcriture(std::size_t n, Panne panne, Maniere maniere = Maniere::rienFait);
  /// Every call whose journal line begins with `debut` fails from now on.
  void EchoueSur(std::string debut, Panne panne);
  /// No more failures.
  void Guerit();

  /// Runs at every call, with its line of the journal, before anything is done.
  std::function<void(const std::string& ligne)> pendant;

  bool Existe(const std::string& nom) override;
  bool DossierExiste(const std::string& nom) override;
  bool ExisteAilleurs(const std::string& chemin) override;
  [[nodiscard]] std::string CheminEntier(const std::string& nom) const override {
    return disque_.CheminEntier(nom);
  }
  std::unique_ptr<Fichier> Ouvre(const std::string& nom) override;
  std::unique_ptr<Fichier> OuvrePourLire(const std::string& nom) override;
  std::unique_ptr<Fichier> Cree(const std::string& nom) override;
  void Copie(const std::string& source, const std::string& cible) override;
  void Supprime(const std::string& nom) override;
  void Renomme(const std::string& nom, const std::string& nouveau) override;
  void CreeDossier(const std::string& nom) override;
  void SupprimeDossier(const std::string& nom) override;
  void SynchroniseNoms(const std::string& dossier) override;
  std::vector<std::string> FichiersDe(const std::string& dossier) override;

  /// Notes a call; throws if it has to fail, after `moitie` when half of a write is to be done.
  void Note(const std::string& ligne, const std::function<void()>& moitie = {});

 private:
  struct Defaut {
    std::size_t n = 0;  // the n-th call from now on; 0: every one
    std::string debut;  // only calls whose line begins so count
    Panne panne = Panne::entreeSortie;
    Maniere maniere = Maniere::rienFait;
  };

  Disque disque_;
  std::vector<std::string> journal_;
  std::optional<Defaut> defaut_;
};

}  // namespace gastrelle::essai
