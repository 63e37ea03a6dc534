// The area of the frame where the child windows lie.
#pragma once

#include <QMdiArea>

namespace gastrelle {

/// Scrolls to the windows that were moved outside of it. Its ground is a shade darker than the
/// desktop's windows; as long as no child window is open the emblem stands in its middle.
class AireFenetres final : public QMdiArea {
 public:
  explicit AireFenetres(QWidget* parent);

 protected:
  void showEvent(QShowEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;

 private:
  [[nodiscard]] bool EstVide() const;
};

}  // namespace gastrelle
