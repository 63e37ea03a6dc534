#include "association/BureauEssai.h"

#include <cstdlib>
#include <fstream>
#include <thread>

namespace gastrelle::essai {
namespace {

constexpr std::chrono::milliseconds unPas{10};

}  // namespace

BureauEssai::BureauEssai() : ouvreur_((chemin() / "ouvreur").string()) {
  namespace fs = std::filesystem;
  for (const char* nom : {"data/applications", "config", "systeme"}) {
    fs::create_directories(chemin() / nom);
  }
  fs::create_directory_symlink("/usr/share/mime", chemin() / "systeme/mime");
  // Each argument with a null byte behind.
  const std::string recu = (chemin() / "recu").string();
  dossier_.Ecrit("ouvreur", "#!/bin/sh\nprintf '%s\\0' \"$@\" > '" + recu + ".~' && mv '" + recu +
                                ".~' '" + recu + "'\n");
  fs::permissions(ouvreur_, fs::perms::owner_all);
  ::setenv("HOME", chemin().c_str(), 1);
  ::setenv("XDG_DATA_HOME", (chemin() / "data").c_str(), 1);
  ::setenv("XDG_CONFIG_HOME", (chemin() / "config").c_str(), 1);
  ::setenv("XDG_DATA_DIRS", (chemin() / "systeme").c_str(), 1);
}

void BureauEssai::Installe(const std::string& nom, const std::string& commande,
                           const std::string& type) const {
  dossier_.Ecrit("data/applications/" + nom + ".desktop",
                 "[Desktop Entry]\nType=Application\nName=" + nom + "\nExec=" + commande +
                     "\nMimeType=" + type + ";\n");
}

bool BureauEssai::Publie() const {
  const std::string programmes = (chemin() / "data/applications").string();
  return std::system(("update-desktop-database '" + programmes + "'").c_str()) == 0;
}

std::vector<std::string> BureauEssai::Recus(std::chrono::milliseconds patience) const {
  const std::filesystem::path recu = chemin() / "recu";
  for (auto passe = unPas; passe < patience && !std::filesystem::exists(recu); passe += unPas) {
    std::this_thread::sleep_for(unPas);
  }
  std::ifstream entree(recu);
  std::vector<std::string> arguments;
  for (std::string argument; std::getline(entree, argument, '\0');) {
    arguments.push_back(argument);
  }
  std::filesystem::remove(recu);
  return arguments;
}

}  // namespace gastrelle::essai
