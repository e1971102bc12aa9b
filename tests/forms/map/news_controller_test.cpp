// SPDX-License-Identifier: MIT
#include "forms/map/news_controller.h"

#include <gmock/gmock.h>

#include "map_controller_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

class NewsControllerTest : public MapControllerFixture {
 protected:
  void ShowNews(int entries) {
    std::vector<NewsItem> items;
    for (int i = 1; i <= entries; ++i) {
      items.push_back({"News " + std::to_string(i), "<b>Tip</b>", "http://x.example"});
    }
    map.SetNews("http://x.example/OX", items);
    news.OnMoved = [this] { play.NewsMoved(); };
    DrawMap();
    news.MapRedrawn();
  }

  // The news labels that the scene shows: index and top.
  std::map<int, double> Labels() {
    std::map<int, double> labels;
    for (const Control* label : Shown(ControlId::NewsLabel)) {
      labels[*label->Index] = label->Place.Top;
    }
    return labels;
  }

  NewsController news{map, log};
};

TEST_F(NewsControllerTest, NewsThatFitStandStill) {
  ShowNews(1);

  EXPECT_FALSE(news.Scrolls());
}

TEST_F(NewsControllerTest, NewsThatDoNotFitMoveUpAStepAtATime) {
  ShowNews(60);
  ASSERT_TRUE(news.Scrolls());
  const auto before = Labels();

  news.ScrollNews();

  const auto after = Labels();
  EXPECT_NEAR(after.at(0), before.at(0), 0.5);  // to whole twips
  EXPECT_NEAR(after.at(1), before.at(1) - 21, 0.5);
}

TEST_F(NewsControllerTest, LabelsBelowTheBoxAreHiddenAtTheFirstStepAndComeUpLater) {
  ShowNews(60);
  EXPECT_EQ(Labels().size(), 61U);
  news.ScrollNews();
  const auto shown = Labels().size();
  EXPECT_LT(shown, 61U);
  for (int i = 0; i < 14; ++i) news.ScrollNews();  // 14 x 21 twips are more than a label's 270

  EXPECT_GT(Labels().size(), shown);
}

TEST_F(NewsControllerTest, ARedrawPutsThemBack) {
  ShowNews(60);
  const auto before = Labels();
  news.ScrollNews();

  DrawMap();
  news.MapRedrawn();

  EXPECT_EQ(Labels(), before);
}

TEST_F(NewsControllerTest, NewsAndBothHalvesOfTheLogoCanBeClicked) {
  ShowNews(1);
  const QPoint label = OnPanel(ControlId::NewsLabel, 1);
  Move(label);
  Click(label);
  EXPECT_THAT(newsClicks, ElementsAre(1));

  const TwipRect logo = *PlaceOf(map.Drawing().Controls, ControlId::Logo);
  const auto at = [&](double x, double y) {
    return QPointF(Pixels(logo.Left + logo.Width * x), Pixels(logo.Top + logo.Height * y))
        .toPoint();
  };
  Move(at(0.2, 0.8));
  Click(at(0.2, 0.8));
  Move(at(0.8, 0.2));
  Click(at(0.8, 0.2));
  EXPECT_THAT(logoClicks, ElementsAre(true, false));
}

TEST_F(NewsControllerTest, NewsAreStopsOfTheTabKeyThatOpenThem) {
  ShowNews(2);
  auto& stop = Find<QAbstractButton>(form, ControlId::NewsLabel, 2);

  QTest::keyClick(&stop, Qt::Key_Return);

  EXPECT_THAT(newsClicks, ElementsAre(2));
  EXPECT_EQ(stop.accessibleName(), "News 2");
  EXPECT_EQ(stop.focusPolicy(), Qt::TabFocus);
}

TEST_F(NewsControllerTest, AStopGoesWithItsNews) {
  ShowNews(60);
  const auto& first = Find<QAbstractButton>(form, ControlId::NewsLabel, 1);
  const auto& last = Find<QAbstractButton>(form, ControlId::NewsLabel, 60);
  const int top = first.geometry().top();

  for (int i = 0; i < 5; ++i) news.ScrollNews();

  EXPECT_EQ(first.geometry().top(), top - 7);  // 5 x 21 twips
  EXPECT_FALSE(last.isVisible());
}

TEST_F(NewsControllerTest, NewsThatAreNoMoreAreNoStops) {
  ShowNews(2);
  ShowNews(1);

  EXPECT_FALSE(Find<QAbstractButton>(form, ControlId::NewsLabel, 2).isVisible());
}

TEST_F(NewsControllerTest, ATipIsNoMarkup) {
  ShowNews(1);

  for (const QGraphicsItem* item : map.Scene().items()) {
    const Control& control = ControlItem::Of(*item);
    if (control.Id == ControlId::NewsLabel && control.Index == 1) {
      EXPECT_TRUE(item->toolTip().contains("&lt;b&gt;Tip"));
    }
  }
}

}  // namespace
}  // namespace orrerix
