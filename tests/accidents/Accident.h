// A process that is killed at one call of the disk.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "doublures/DisqueEssai.h"

namespace gastrelle::essai {

/// Where it is killed: before the n-th call of a sequence (1: the first one), or in the middle of
/// the bytes that this call writes.
struct Coup {
  std::size_t appel = 0;
  bool aMoitie = false;
  std::string ligne;  ///< the call's line of the journal
};

/// Every place of a sequence where it can be killed, in order, by its journal: before each call and
/// amid each write and each copy.
std::vector<Coup> CoupsDe(const std::vector<std::string>& journal);

/// From now on the disk's calls count, and the process is killed at that place: by SIGKILL before a
/// call; amid a write by the system itself, which lets no file grow beyond half of these bytes and
/// ends whoever tries to (SIGXFSZ).
void Arme(DisqueEssai& disque, const Coup& coup);

/// Runs `sequence` in a child process that is killed there; one that isn't fails the test.
void Tue(DisqueEssai& disque, const Coup& coup, const std::function<void()>& sequence);

/// What is seen at each place of a sequence, told as ranges: what is the same from one place to the
/// next is told once, with the line of the first one ("a" from the start, then "b dès la ligne").
class Plages {
 public:
  void Ajoute(const std::string& vu, const Coup& coup);
  [[nodiscard]] const std::vector<std::string>& vues() const { return plages_; }

 private:
  std::string dernier_;
  std::vector<std::string> plages_;
};

}  // namespace gastrelle::essai
