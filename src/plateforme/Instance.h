// One running program for each folder. The lock lies on the folder itself, leaves no file behind
// and goes with the process, however it ends.
#pragma once

#include <filesystem>
#include <memory>

namespace gastrelle {

/// Holds the lock of a folder for as long as it lives.
class Instance {
 public:
  Instance() = default;
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;
  virtual ~Instance() = default;

  /// Takes the lock; null if another running program holds it. A folder that can't be locked at all
  /// (no such service on its file system) counts as free.
  static std::unique_ptr<Instance> Prend(const std::filesystem::path& dossier);
};

}  // namespace gastrelle
