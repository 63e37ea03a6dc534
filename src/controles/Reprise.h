// Which text of which record a box was given last.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace gastrelle {

class Reprise {
 public:
  /// True if it was the same text of the same record the last time. `numero` 0: no record.
  [[nodiscard]] bool EstLaMeme(std::string_view texte, std::int32_t numero) {
    const bool meme = numero == numero_ && texte == texte_;
    texte_ = texte;
    numero_ = numero;
    return meme;
  }

 private:
  std::string texte_;
  std::int32_t numero_ = -1;
};

}  // namespace gastrelle
