#include <string>

#include "plateforme/CheminWindows.h"
#include "plateforme/Instance.h"
#include "plateforme/PoigneeWindows.h"

namespace gastrelle {
namespace {

/// A name made of the folder's identity, whatever path leads to it; empty if there is no folder.
/// It holds for all users of the machine.
std::wstring NomDe(const std::filesystem::path& dossier) {
  constexpr DWORD sansOuvrir = 0;
  const Poignee ouvert(::CreateFileW(PourLeSysteme(dossier).c_str(), sansOuvrir,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                     nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION identite{};
  if (!ouvert.ouverte() || ::GetFileInformationByHandle(ouvert.poignee(), &identite) == 0) {
    return {};
  }
  return L"Global\\gastrelle-" + std::to_wstring(identite.dwVolumeSerialNumber) + L"-" +
         std::to_wstring(identite.nFileIndexHigh) + L"-" + std::to_wstring(identite.nFileIndexLow);
}

/// The name lives as long as a process holds it.
class NomReserve final : public Instance {
 public:
  explicit NomReserve(Poignee nom) : nom_(std::move(nom)) {}

 private:
  Poignee nom_;
};

}  // namespace

std::unique_ptr<Instance> Instance::Prend(const std::filesystem::path& dossier) {
  const std::wstring nom = NomDe(dossier);
  if (nom.empty()) {
    return nullptr;
  }
  Poignee reserve(::CreateMutexW(nullptr, FALSE, nom.c_str()));
  const bool prisAilleurs = ::GetLastError() == ERROR_ALREADY_EXISTS;
  return reserve.ouverte() && !prisAilleurs ? std::make_unique<NomReserve>(std::move(reserve))
                                            : nullptr;
}

}  // namespace gastrelle
