// A program folder in memory: what the disk of the machine does, without touching it, and with an
// end: a file that would grow beyond the capacity finds the disk full.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include "plateforme/AccesFichiers.h"

namespace gastrelle::essai {

class DisqueMemoire final : public AccesFichiers {
 public:
  /// Largest size of a file, in bytes.
  static constexpr std::int64_t capacite = std::int64_t{1} << 22U;

  void Pose(const std::string& nom, std::string octets);
  void PoseDossier(const std::string& nom) { dossiers_.insert(nom); }
  /// A file outside the folder, by its whole path.
  void PoseAilleurs(const std::string& chemin) { ailleurs_.insert(chemin); }
  /// Bytes of a file; empty when it isn't there.
  [[nodiscard]] std::string Lit(const std::string& nom) const;

  /// The n-th call from now on (1: the next one) fails, once. 0: none does.
  void EchoueALAppel(unsigned n) { reste_ = n; }

  bool Existe(const std::string& nom) override;
  bool DossierExiste(const std::string& nom) override;
  bool ExisteAilleurs(const std::string& chemin) override;
  [[nodiscard]] std::string CheminEntier(const std::string& nom) const override {
    return "/memoire/" + nom;
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

  /// One call of the disk goes by; throws if it is the one that fails.
  void Compte();

 private:
  /// The bytes outlive the name, as those of an open file do.
  using Octets = std::shared_ptr<std::string>;

  std::map<std::string, Octets> fichiers_;
  std::set<std::string> dossiers_;
  std::set<std::string> ailleurs_;
  unsigned reste_ = 0;
};

}  // namespace gastrelle::essai
