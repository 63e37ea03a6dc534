// The locks of the keyboard.
#pragma once

#include <optional>

namespace gastrelle {

struct Verrous {
  bool majuscules = false;
  bool numerique = false;

  bool operator==(const Verrous&) const = default;
};

class Clavier {
 public:
  Clavier() = default;
  Clavier(const Clavier&) = delete;
  Clavier& operator=(const Clavier&) = delete;
  virtual ~Clavier() = default;

  /// The locks as they are now; nothing where the system doesn't tell. Never throws.
  [[nodiscard]] virtual std::optional<Verrous> Lit() = 0;
};

/// The X server on Linux, the system on Windows.
class ClavierSysteme final : public Clavier {
 public:
  [[nodiscard]] std::optional<Verrous> Lit() override;
};

}  // namespace gastrelle
