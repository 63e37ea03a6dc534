// Today's date, given to the code so that tests can choose it.
#pragma once

#include <chrono>
#include <cstdint>

namespace gastrelle {

class Horloge {
 public:
  Horloge() = default;
  Horloge(const Horloge&) = delete;
  Horloge& operator=(const Horloge&) = delete;
  virtual ~Horloge() = default;

  [[nodiscard]] virtual std::chrono::year_month_day Aujourdhui() const = 0;
};

class HorlogeSysteme final : public Horloge {
 public:
  /// Today in the machine's own time zone.
  [[nodiscard]] std::chrono::year_month_day Aujourdhui() const override;
};

/// Whole days since 30 December 1899, the day number that record headers hold.
constexpr std::int32_t NumeroJour(std::chrono::year_month_day date) {
  using namespace std::chrono;
  constexpr sys_days origine{year{1899} / December / 30};
  return static_cast<std::int32_t>((sys_days{date} - origine).count());
}

}  // namespace gastrelle
