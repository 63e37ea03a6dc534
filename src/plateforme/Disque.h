// The disk of the machine, seen from the program's folder.
#pragma once

#include <filesystem>

#include "plateforme/AccesFichiers.h"

namespace gastrelle {

class Disque final : public AccesFichiers {
 public:
  explicit Disque(std::filesystem::path dossier) : dossier_(std::move(dossier)) {}

  bool Existe(const std::string& nom) override;
  bool DossierExiste(const std::string& nom) override;
  bool ExisteAilleurs(const std::string& chemin) override;
  [[nodiscard]] std::string CheminEntier(const std::string& nom) const override;
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

 private:
  [[nodiscard]] std::filesystem::path Chemin(const std::string& nom) const;

  std::filesystem::path dossier_;
};

}  // namespace gastrelle
