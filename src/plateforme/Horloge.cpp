#include "plateforme/Horloge.h"

#include <ctime>

namespace gastrelle {

std::chrono::year_month_day HorlogeSysteme::Aujourdhui() const {
  const std::time_t maintenant = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  ::localtime_s(&local, &maintenant);
#else
  ::localtime_r(&maintenant, &local);
#endif
  constexpr int origineAnnees = 1900;
  return std::chrono::year{local.tm_year + origineAnnees} /
         std::chrono::month{static_cast<unsigned>(local.tm_mon) + 1} /
         std::chrono::day{static_cast<unsigned>(local.tm_mday)};
}

}  // namespace gastrelle
