// A library of the system that is opened at its first use: the program starts without it and the
// libraries that it brings, and runs where it isn't installed.
#pragma once

#include <dlfcn.h>

namespace gastrelle {

/// Stays open until the process ends. Looked for in the folders of the system alone; where the
/// libraries that it needs are looked for is the system's affair.
class BibliothequeSysteme {
 public:
  /// `nom`: that of its file, with the version of its interface ("libgio-2.0.so.0").
  explicit BibliothequeSysteme(const char* nom);

  /// Sets a function by its name, also one of the libraries that came along. What isn't there makes
  /// the whole library absent.
  template <class Fonction>
  void Prend(Fonction& fonction, const char* nom) {
    fonction = presente() ? reinterpret_cast<Fonction>(::dlsym(poignee_, nom)) : nullptr;
    complete_ = complete_ && fonction != nullptr;
  }

  [[nodiscard]] bool presente() const { return poignee_ != nullptr && complete_; }

 private:
  void* poignee_ = nullptr;
  bool complete_ = true;
};

}  // namespace gastrelle
