// A number under which the system keeps something open for the process: closed with the object.
#pragma once

#include <unistd.h>
#include <utility>

namespace gastrelle {

class Descripteur {
 public:
  /// Below 0: nothing is open.
  explicit Descripteur(int numero) : numero_(numero) {}
  Descripteur(Descripteur&& autre) noexcept : numero_(autre.Lache()) {}
  Descripteur(const Descripteur&) = delete;
  Descripteur& operator=(const Descripteur&) = delete;
  Descripteur& operator=(Descripteur&&) = delete;
  ~Descripteur() {
    if (numero_ >= 0) {
      ::close(numero_);
    }
  }

  [[nodiscard]] int numero() const { return numero_; }
  /// The number, which is open for whoever takes it from now on.
  [[nodiscard]] int Lache() { return std::exchange(numero_, -1); }

 private:
  int numero_;
};

}  // namespace gastrelle
