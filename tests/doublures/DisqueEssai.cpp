#include "doublures/DisqueEssai.h"

#include <algorithm>
#include <array>

namespace gastrelle::essai {
namespace {

std::string Etendue(const std::string& verbe, const std::string& nom, std::int64_t ou,
                    std::size_t combien) {
  return verbe + " " + nom + " " + std::to_string(ou) + "+" + std::to_string(combien);
}

class FichierEssai final : public Fichier {
 public:
  FichierEssai(DisqueEssai& disque, std::string nom, std::unique_ptr<Fichier> vrai)
      : disque_(disque), nom_(std::move(nom)), vrai_(std::move(vrai)) {}

  std::size_t Lit(std::int64_t decalage, std::span<char> tampon) override {
    disque_.Note(Etendue("lit", nom_, decalage, tampon.size()));
    return vrai_->Lit(decalage, tampon);
  }

  void Ecrit(std::int64_t decalage, std::string_view octets) override {
    disque_.Note(Etendue("écrit", nom_, decalage, octets.size()),
                 [&] { vrai_->Ecrit(decalage, octets.substr(0, octets.size() / 2)); });
    vrai_->Ecrit(decalage, octets);
  }

  std::int64_t Longueur() override {
    disque_.Note("longueur " + nom_);
    return vrai_->Longueur();
  }

  void Synchronise() override {
    disque_.Note("synchronise " + nom_);
    vrai_->Synchronise();
  }

 private:
  DisqueEssai& disque_;
  std::string nom_;
  std::unique_ptr<Fichier> vrai_;
};

}  // namespace

std::vector<std::string> DisqueEssai::changements() const {
  constexpr std::array<const char*, 6> verbes{"écrit ",   "copie ", "supprime ",
                                              "renomme ", "crée ",  "enlève "};
  std::vector<std::string> lignes;
  std::copy_if(journal_.begin(), journal_.end(), std::back_inserter(lignes),
               [&](const std::string& ligne) {
                 return std::any_of(verbes.begin(), verbes.end(),
                                    [&](const char* verbe) { return ligne.starts_with(verbe); });
               });
  return lignes;
}

void DisqueEssai::EchoueALAppel(std::size_t n, Panne panne, Maniere maniere) {
  defaut_ = Defaut{n, {}, panne, maniere};
}

void DisqueEssai::EchoueALaNiemeEcriture(std::size_t n, Panne panne, Maniere maniere) {
  defaut_ = Defaut{n, "écrit ", panne, maniere};
}

void DisqueEssai::EchoueSur(std::string debut, Panne panne) {
  defaut_ = Defaut{0, std::move(debut), panne, Maniere::rienFait};
}

void DisqueEssai::Guerit() {
  defaut_.reset();
}

void DisqueEssai::Note(const std::string& ligne, const std::function<void()>& moitie) {
  journal_.push_back(ligne);
  if (pendant) {
    pendant(ligne);
  }
  if (!defaut_ || !ligne.starts_with(defaut_->debut)) {
    return;
  }
  if (defaut_->n > 1) {
    --defaut_->n;
    return;
  }
  const Defaut defaut = *defaut_;
  if (defaut.n == 1) {
    defaut_.reset();
  }
  if (defaut.maniere == Maniere::moitieEcrite && moitie) {
    moitie();
  }
  throw ErreurExecution(defaut.panne);
}

bool DisqueEssai::Existe(const std::string& nom) {
  Note("existe " + nom);
  return disque_.Existe(nom);
}

bool DisqueEssai::DossierExiste(const std::string& nom) {
  Note("dossier? " + nom);
  return disque_.DossierExiste(nom);
}

bool DisqueEssai::ExisteAilleurs(const std::string& chemin) {
  Note("ailleurs? " + chemin);
  return disque_.ExisteAilleurs(chemin);
}

std::unique_ptr<Fichier> DisqueEssai::Ouvre(const std::string& nom) {
  Note("ouvre " + nom);
  return std::make_unique<FichierEssai>(*this, nom, disque_.Ouvre(nom));
}

std::unique_ptr<Fichier> DisqueEssai::OuvrePourLire(const std::string& nom) {
  Note("consulte " + nom);
  return std::make_unique<FichierEssai>(*this, nom, disque_.OuvrePourLire(nom));
}

std::unique_ptr<Fichier> DisqueEssai::Cree(const std::string& nom) {
  Note("crée " + nom);
  return std::make_unique<FichierEssai>(*this, nom, disque_.Cree(nom));
}

void DisqueEssai::Copie(const std::string& source, const std::string& cible) {
  Note("copie " + source + " " + cible);
  disque_.Copie(source, cible);
}

void DisqueEssai::Supprime(const std::string& nom) {
  Note("supprime " + nom);
  disque_.Supprime(nom);
}

void DisqueEssai::Renomme(const std::string& nom, const std::string& nouveau) {
  Note("renomme " + nom + " " + nouveau);
  disque_.Renomme(nom, nouveau);
}

void DisqueEssai::CreeDossier(const std::string& nom) {
  Note("crée " + nom);
  disque_.CreeDossier(nom);
}

void DisqueEssai::SupprimeDossier(const std::string& nom) {
  Note("enlève " + nom);
  disque_.SupprimeDossier(nom);
}

void DisqueEssai::SynchroniseNoms(const std::string& dossier) {
  Note("synchronise " + dossier + "/");
  disque_.SynchroniseNoms(dossier);
}

std::vector<std::string> DisqueEssai::FichiersDe(const std::string& dossier) {
  Note("énumère " + dossier);
  return disque_.FichiersDe(dossier);
}

}  // namespace gastrelle::essai
