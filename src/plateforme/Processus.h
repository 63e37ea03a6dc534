// The end of the process, given to the code so that tests can survive it.
#pragma once

#include <cstdlib>

namespace gastrelle {

class Processus {
 public:
  Processus() = default;
  Processus(const Processus&) = delete;
  Processus& operator=(const Processus&) = delete;
  virtual ~Processus() = default;

  /// Ends the process at once, without any unloading. 1 after a message, 0 at a normal end.
  [[noreturn]] void Termine(int statut) {
    Finit(statut);
    std::abort();  // Finit doesn't return
  }

 protected:
  /// Ends the process; a test's double throws instead.
  virtual void Finit(int statut) = 0;
};

class ProcessusSysteme final : public Processus {
 protected:
  void Finit(int statut) override;
};

}  // namespace gastrelle
