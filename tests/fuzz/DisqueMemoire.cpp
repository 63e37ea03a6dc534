#include "fuzz/DisqueMemoire.h"

#include <algorithm>

#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

void Exige(bool condition, Panne panne) {
  if (!condition) {
    throw ErreurExecution(panne);
  }
}

class FichierMemoire final : public Fichier {
 public:
  FichierMemoire(DisqueMemoire& disque, std::shared_ptr<std::string> octets)
      : disque_(disque), octets_(std::move(octets)) {}

  std::size_t Lit(std::int64_t decalage, std::span<char> tampon) override {
    disque_.Compte();
    Exige(decalage >= 0, Panne::appelIncorrect);
    const auto debut =
        static_cast<std::size_t>(std::min(decalage, static_cast<std::int64_t>(octets_->size())));
    return octets_->copy(tampon.data(), tampon.size(), debut);
  }

  void Ecrit(std::int64_t decalage, std::string_view octets) override {
    disque_.Compte();
    Exige(decalage >= 0, Panne::appelIncorrect);
    const auto longueur = static_cast<std::int64_t>(octets.size());
    Exige(decalage <= DisqueMemoire::capacite - longueur, Panne::disquePlein);
    const auto debut = static_cast<std::size_t>(decalage);
    octets_->resize(std::max(octets_->size(), debut + octets.size()), '\0');
    octets_->replace(debut, octets.size(), octets);
  }

  std::int64_t Longueur() override {
    disque_.Compte();
    return static_cast<std::int64_t>(octets_->size());
  }

  void Synchronise() override { disque_.Compte(); }

 private:
  DisqueMemoire& disque_;
  std::shared_ptr<std::string> octets_;
};

}  // namespace

void DisqueMemoire::Pose(const std::string& nom, std::string octets) {
  fichiers_[nom] = std::make_shared<std::string>(std::move(octets));
}

std::string DisqueMemoire::Lit(const std::string& nom) const {
  const auto fichier = fichiers_.find(nom);
  return fichier == fichiers_.end() ? std::string{} : *fichier->second;
}

void DisqueMemoire::Compte() {
  Exige(reste_ == 0 || --reste_ > 0, Panne::entreeSortie);
}

bool DisqueMemoire::Existe(const std::string& nom) {
  Compte();
  return fichiers_.contains(nom);
}

bool DisqueMemoire::DossierExiste(const std::string& nom) {
  Compte();
  return dossiers_.contains(nom);
}

bool DisqueMemoire::ExisteAilleurs(const std::string& chemin) {
  Compte();
  return ailleurs_.contains(chemin);
}

std::unique_ptr<Fichier> DisqueMemoire::Ouvre(const std::string& nom) {
  Compte();
  Octets& octets = fichiers_[nom];
  if (!octets) {
    octets = std::make_shared<std::string>();
  }
  return std::make_unique<FichierMemoire>(*this, octets);
}

std::unique_ptr<Fichier> DisqueMemoire::OuvrePourLire(const std::string& nom) {
  Compte();
  const auto present = fichiers_.find(nom);
  Exige(present != fichiers_.end(), Panne::fichierIntrouvable);
  return std::make_unique<FichierMemoire>(*this, present->second);
}

std::unique_ptr<Fichier> DisqueMemoire::Cree(const std::string& nom) {
  std::unique_ptr<Fichier> cree = Ouvre(nom);
  fichiers_[nom]->clear();
  return cree;
}

void DisqueMemoire::Copie(const std::string& source, const std::string& cible) {
  Compte();
  Exige(fichiers_.contains(source), Panne::fichierIntrouvable);
  Pose(cible, *fichiers_[source]);
}

void DisqueMemoire::Supprime(const std::string& nom) {
  Compte();
  Exige(fichiers_.erase(nom) == 1, Panne::fichierIntrouvable);
}

void DisqueMemoire::Renomme(const std::string& nom, const std::string& nouveau) {
  Compte();
  auto fichier = fichiers_.extract(nom);
  Exige(!fichier.empty(), Panne::fichierIntrouvable);
  fichiers_[nouveau] = std::move(fichier.mapped());
}

void DisqueMemoire::CreeDossier(const std::string& nom) {
  Compte();
  Exige(dossiers_.insert(nom).second, Panne::accesFichier);
}

void DisqueMemoire::SupprimeDossier(const std::string& nom) {
  Exige(FichiersDe(nom).empty(), Panne::accesFichier);
  Exige(dossiers_.erase(nom) == 1, Panne::cheminIntrouvable);
}

void DisqueMemoire::SynchroniseNoms(const std::string& /*dossier*/) {
  Compte();
}

std::vector<std::string> DisqueMemoire::FichiersDe(const std::string& dossier) {
  Compte();
  Exige(dossiers_.contains(dossier), Panne::cheminIntrouvable);
  std::vector<std::string> noms;
  const std::string debut = dossier + "/";
  for (const auto& [nom, octets] : fichiers_) {
    if (nom.starts_with(debut)) {
      noms.push_back(nom.substr(debut.size()));
    }
  }
  return noms;
}

}  // namespace gastrelle::essai
