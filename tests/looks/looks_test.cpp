#include <QAbstractButton>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <map>

#include "all_forms.h"
#include "platform/controls/pictures.h"
#include "platform/forms/free_place.h"

// What an eye needs of every window.
namespace ratanka {
namespace {

// Relative luminance and contrast as accessibility guidelines define them (WCAG 2, 1.4.3).
double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

// How well a text stands out from what lies behind it: the contrast that nine tenths of its full
// pixels reach. Nothing (21) for a text of which nothing is seen.
double readability(QWidget& window, const QRect& area, const std::function<void(bool)>& showText) {
  showText(false);
  const QImage behind = window.grab(area).toImage();
  showText(true);
  const QImage seen = window.grab(area).toImage();
  // The letters' own colour is the one that differs most.
  double strongest = 0;
  std::vector<double> contrasts;
  for (const bool isCounting : {true, false}) {
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) {
        const QColor letter = seen.pixelColor(x, y);
        const QColor back = behind.pixelColor(x, y);
        if (letter == back) continue;
        const double own = contrast(letter, back);
        if (isCounting) strongest = std::max(strongest, own);
        if (!isCounting && own > 0.95 * strongest) contrasts.push_back(own);
      }
    }
  }
  if (contrasts.empty()) return 21;
  std::ranges::sort(contrasts);
  return contrasts[contrasts.size() / 10];
}

class LooksTest : public AllFormsTest {
 protected:
  void SetUp() override { forms.show(names::Úvod); }

  // Every text of a window that is read below the limit, as "form/control".
  void collect(FormName name, std::map<std::string, double>& weak) {
    constexpr double kLimit = 4.5;
    QWidget& form = *window(name);
    const auto judge = [&](QWidget& control, const QString& text, const auto& setText) {
      if (text.trimmed().isEmpty() || !control.isVisible()) return;
      const QRect area(control.mapTo(&form, QPoint()), control.size());
      const double found =
          readability(form, area, [&](bool shows) { setText(shows ? text : QString()); });
      const std::string id = std::string(name.text()) + "/" + control.objectName().toStdString();
      if (found < kLimit) weak[id] = found;
    };
    for (QLabel* const label : form.findChildren<QLabel*>()) {
      judge(*label, label->text(), [label](const QString& text) { label->setText(text); });
    }
    for (QAbstractButton* const button : form.findChildren<QAbstractButton*>()) {
      judge(*button, button->text(), [button](const QString& text) { button->setText(text); });
    }
  }
};

TEST_F(LooksTest, EveryTextIsEasyToRead) {
  // Red and green counters are what they are, in bold; and ink on the menu's pure red can't reach
  // more than black on it would (5.3, less its smooth edges).
  const auto isTold = [](const std::string& id) {
    return id.ends_with("/Label38") || id == "Úvod/Command8";
  };
  std::map<std::string, double> weak;
  for (const FormName name : allSeenForms()) {
    forms.show(name);
    settle();
    collect(name, weak);
    if (name != names::Úvod) forms.drop(name);
  }
  for (const auto& [id, found] : weak) EXPECT_TRUE(isTold(id)) << id << ' ' << found;
}

TEST_F(LooksTest, WindowsKeepOutOfEachOthersWay) {
  const QSize largest = QSize(kLargestWindow.width, kLargestWindow.height);
  for (const FormName name : allSeenForms()) {
    forms.show(name);
    settle();
    const QSize size = withFrame(window(name)->size());
    EXPECT_EQ(size.boundedTo(largest), size) << name.text();
    if (name != names::Úvod) forms.drop(name);
  }
  // A sheet of this screen of 800 x 800, and what comes up with it.
  forms.show(names::Násobilka);
  window(names::Hodiny)->move(280, 300);  // where some desktops put it
  settle();
  const QRect page = window(names::Násobilka)->geometry();
  const QRect hidden = page & window(names::Hodiny)->geometry();
  EXPECT_LT(hidden.width() * hidden.height(), 239 * 190 / 8);
  forms.show(names::frmPuzzle);
  settle();
  const QRect game = window(names::frmPuzzle)->frameGeometry();
  for (const auto* const box : window(names::Násobilka)->findChildren<QLineEdit*>()) {
    EXPECT_FALSE(game.intersects({box->mapToGlobal(QPoint()), box->size()}))
        << box->objectName().toStdString();
  }
}

// Where a shaped window is cut its picture is drawn all over, and ends soon: pages bleed a little
// beyond their edge, and the clock was traced.
TEST_F(LooksTest, OutlinesFollowTheirPictures) {
  struct Shaped {
    FormName name;
    const char* picture;
    QSize size;
    int bleed;  // pixels
  };
  for (const Shaped& shaped : {Shaped{names::Úvod, "menu-page", {242, 277}, 1},
                               {names::Malá, "sheet-page", {533, 499}, 6},
                               {names::Vysvedčenie, "report-card", {359, 464}, 6},
                               {names::Hodiny, "clock", {239, 190}, 0}}) {
    forms.show(shaped.name);
    settle();
    const QRegion cut = window(shaped.name)->mask();
    const QImage drawn = picture(shaped.picture, shaped.size, 1).toImage();
    // The cut has the pixels that its edge touches, too: two on each side are left to it.
    const auto isDeepInside = [&](int x, int y) {
      return (QRegion(QRect(x - 2, y - 2, 5, 5)) - cut).isEmpty();
    };
    const auto isNear = [&](int x, int y) {
      const int reach = 2 * shaped.bleed + 1;
      return cut.intersects(QRect(x - shaped.bleed, y - shaped.bleed, reach, reach));
    };
    int holes = 0;
    int lost = 0;
    for (int y = 0; y < drawn.height(); ++y) {
      for (int x = 0; x < drawn.width(); ++x) {
        const bool isDrawn = drawn.pixelColor(x, y).alpha() > 128;
        if (!isDrawn && cut.contains(QPoint(x, y)) && isDeepInside(x, y)) ++holes;
        if (isDrawn && !isNear(x, y)) ++lost;
      }
    }
    EXPECT_EQ(holes, 0) << shaped.picture;
    EXPECT_EQ(lost, 0) << shaped.picture;
    if (shaped.name != names::Úvod) forms.drop(shaped.name);
  }
}

}  // namespace
}  // namespace ratanka
