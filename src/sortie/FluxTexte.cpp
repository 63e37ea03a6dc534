#include "sortie/FluxTexte.h"

#include <algorithm>
#include <utility>

#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr auto contenance = static_cast<std::size_t>(FluxTexte::place);

}  // namespace

FluxTexte::FluxTexte(AccesFichiers& disque, const std::string& nom)
    : fichier_(disque.Cree(nom)),
      // NOLINTNEXTLINE(modernize-avoid-c-arrays): untouched, it costs nothing
      attente_(std::make_unique_for_overwrite<char[]>(contenance)) {}

FluxTexte::~FluxTexte() {
  PasseOutre([this] { Vide(); });
}

void FluxTexte::Ajoute(std::string_view octets) {
  FaitPlace(octets.size());
  if (octets.size() > contenance) {
    EcritOctets(octets);
    return;
  }
  std::copy(octets.begin(), octets.end(), attente_.get() + remplis_);
  remplis_ += octets.size();
}

void FluxTexte::FaitPlace(std::size_t octets) {
  if (octets > contenance - remplis_) {
    Vide();
  }
}

void FluxTexte::Vide() {
  if (remplis_ > 0) {
    EcritOctets({attente_.get(), std::exchange(remplis_, 0)});
  }
}

void FluxTexte::EcritOctets(std::string_view octets) {
  fichier_->Ecrit(ecrits_, octets);
  ecrits_ += static_cast<std::int64_t>(octets.size());
}

}  // namespace gastrelle
