// The system's demand that the program stop: on Linux the signals SIGTERM, SIGHUP and SIGINT.
#pragma once

#include <chrono>
#include <memory>

namespace gastrelle {

/// While it lives, such a demand is told instead of ending the process, so that the program ends in
/// its own way. There may be one at a time.
class DemandeArret {
 public:
  /// A demand that the process was told to ignore at its start stays ignored. Further ones within
  /// `patience` of the first are the same, told more than once, as a closing terminal does; a later
  /// one ends the process at once: whoever sends it has waited in vain.
  explicit DemandeArret(std::chrono::milliseconds patience = std::chrono::seconds(5));
  DemandeArret(const DemandeArret&) = delete;
  DemandeArret& operator=(const DemandeArret&) = delete;
  /// A demand ends the process again, as at its start.
  ~DemandeArret();

  /// What can be read from as soon as there was a demand. Below 0 if the system has nothing left to
  /// give: a demand then ends the process as if this object weren't there.
  [[nodiscard]] int descripteur() const;

 private:
  struct Guet;
  std::unique_ptr<Guet> guet_;
};

}  // namespace gastrelle
