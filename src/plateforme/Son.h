// Playing a sound file without waiting for its end.
#pragma once

#include <filesystem>

namespace gastrelle {

class Son {
 public:
  Son() = default;
  Son(const Son&) = delete;
  Son& operator=(const Son&) = delete;
  virtual ~Son() = default;

  /// Starts playing and returns at once. Silent when there is no file or no device; never throws.
  virtual void Joue(const std::filesystem::path& fichier) = 0;
};

/// libcanberra on Linux, the multimedia library on Windows; opened at the first sound only.
class SonSysteme final : public Son {
 public:
  SonSysteme() = default;
  SonSysteme(const SonSysteme&) = delete;
  SonSysteme& operator=(const SonSysteme&) = delete;
  ~SonSysteme() override;

  void Joue(const std::filesystem::path& fichier) override;

 private:
  void* contexte_ = nullptr;
};

}  // namespace gastrelle
