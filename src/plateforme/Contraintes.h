// What the system allows a process, set right before anything else happens.
#pragma once

namespace gastrelle {

/// A write beyond the largest size that a file may have fails, as on a full disk; otherwise the
/// system would end the process. Programs that this one opens aren't touched by it.
void ChangeSignalEnErreur();

/// Gives the process the standard input, output and error that it may have been started without:
/// a library's warning would be written into the data file that got their number.
void GarnitEntreesSorties();

/// How many more files the process may hold open at once, counted up to `assez`. A limit that may
/// be raised is raised first.
int FichiersPermis(int assez);

}  // namespace gastrelle
