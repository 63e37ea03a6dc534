// The one door to the disk. Everything is unbuffered and positioned: once a call has returned, the
// bytes are in the file, and a length is asked of the file every time.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace gastrelle {

/// An open file, closed when the object goes. Every call throws ErreurExecution on a failure.
class Fichier {
 public:
  Fichier() = default;
  Fichier(const Fichier&) = delete;
  Fichier& operator=(const Fichier&) = delete;
  virtual ~Fichier() = default;

  /// Reads into `tampon` from byte `decalage` (counted from 0). Returns the number of bytes read,
  /// which is below the size of `tampon` only at the end of the file.
  virtual std::size_t Lit(std::int64_t decalage, std::span<char> tampon) = 0;

  /// Writes all of `octets` at byte `decalage` (counted from 0); the file grows as needed.
  virtual void Ecrit(std::int64_t decalage, std::string_view octets) = 0;

  /// Length in bytes, as it stands now.
  virtual std::int64_t Longueur() = 0;

  /// Brings what was written to the device itself: from then on a power cut takes none of it, as
  /// long as the file's name is there as well.
  virtual void Synchronise() = 0;
};

/// The program's folder. Names are bare names in that folder, or a name in one of its own folders
/// with "/" between, in UTF-8. Every call throws ErreurExecution on a failure.
class AccesFichiers {
 public:
  AccesFichiers() = default;
  AccesFichiers(const AccesFichiers&) = delete;
  AccesFichiers& operator=(const AccesFichiers&) = delete;
  virtual ~AccesFichiers() = default;

  /// True if a file (not a folder) of that name is there.
  virtual bool Existe(const std::string& nom) = 0;
  /// True if a folder of that name is there.
  virtual bool DossierExiste(const std::string& nom) = 0;
  /// True if a file is there under a whole path, anywhere on the machine (UTF-8).
  virtual bool ExisteAilleurs(const std::string& chemin) = 0;
  /// Whole path of a name, anywhere a path is asked for (UTF-8). Touches nothing.
  [[nodiscard]] virtual std::string CheminEntier(const std::string& nom) const = 0;

  /// Opens for reading and writing; a file that isn't there is created empty.
  virtual std::unique_ptr<Fichier> Ouvre(const std::string& nom) = 0;
  /// Opens for reading alone a file that is there.
  virtual std::unique_ptr<Fichier> OuvrePourLire(const std::string& nom) = 0;
  /// Opens for writing a file that is empty then: one that is there loses what it held.
  virtual std::unique_ptr<Fichier> Cree(const std::string& nom) = 0;
  /// Copies a file over another. When it fails, the other stands as it was.
  virtual void Copie(const std::string& source, const std::string& cible) = 0;
  virtual void Supprime(const std::string& nom) = 0;
  virtual void Renomme(const std::string& nom, const std::string& nouveau) = 0;
  virtual void CreeDossier(const std::string& nom) = 0;
  /// Deletes a folder that is empty.
  virtual void SupprimeDossier(const std::string& nom) = 0;
  /// Brings to the device which files a folder holds, and under which names: what was made, renamed
  /// or deleted there. An empty name: the program's folder. Where the system can't, nothing
  /// happens.
  virtual void SynchroniseNoms(const std::string& dossier) = 0;
  /// Names of the files (not the folders) that a folder holds, in the order of their bytes.
  virtual std::vector<std::string> FichiersDe(const std::string& dossier) = 0;
};

}  // namespace gastrelle
