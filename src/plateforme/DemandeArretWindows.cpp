#include "plateforme/DemandeArret.h"

namespace gastrelle {

/// A program with windows gets no signals: it is asked to close its window, and told of the end of
/// the session, both by messages that the toolkit receives.
struct DemandeArret::Guet {};

DemandeArret::DemandeArret(std::chrono::milliseconds /*patience*/) {}

DemandeArret::~DemandeArret() = default;

int DemandeArret::descripteur() const {
  return -1;
}

}  // namespace gastrelle
