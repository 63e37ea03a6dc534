// One running program for each folder. The locks leave no file behind and go with the process,
// however it ends.
#pragma once

#include <filesystem>
#include <memory>

namespace gastrelle {

/// Holds the locks of a folder for as long as it lives.
class Instance {
 public:
  Instance() = default;
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;
  virtual ~Instance() = default;

  /// Takes the locks; null if another running program holds one of them, or if the system gives
  /// none: without a lock nobody knows who else is there.
  static std::unique_ptr<Instance> Prend(const std::filesystem::path& dossier);
};

}  // namespace gastrelle
