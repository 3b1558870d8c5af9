// Two programs on one file of places: what one saves stands in the other's list when it is opened.
#include <QAbstractItemView>
#include <QComboBox>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <variant>

#include "tests/model/fakes.h"
#include "tests/support/patience.h"
#include "ui/sidebar/location_section.h"

namespace veyruna::ui {
namespace {

struct SharedPlaces : testing::Test {
  QTemporaryDir folder;
  tests::FakeWorld world;
  model::AstronomyModel here{surroundings()};
  model::AstronomyModel there{surroundings()};
  LocationSection section{here};
  QComboBox* picker = section.findChild<QComboBox*>(QStringLiteral("locationPicker"));

  model::AstronomyModel::Surroundings surroundings() {
    auto all = world.surroundings();
    all.newId = [] { return QUuid::createUuid(); };  // no two programs give the same
    all.locationsPath = folder.filePath(QStringLiteral("locations.json"));
    return all;
  }
  SharedPlaces() {
    section.show();
    section.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&section, tests::patienceMilliseconds));
    picker->setFocus();
  }
};

TEST_F(SharedPlaces, AreListedAsSoonAsTheListIsOpened) {
  struct Opening {
    const char* name;
    std::function<void()> open;
  };
  const std::vector<Opening> openings = {
      {"click", [this] { QTest::mouseClick(picker, Qt::LeftButton); }},
      {"Alt+Down", [this] { QTest::keyClick(picker, Qt::Key_Down, Qt::AltModifier); }},
      {"F4", [this] { QTest::keyClick(picker, Qt::Key_F4); }},
      {"Space", [this] { QTest::keyClick(picker, Qt::Key_Space); }}};
  for (const Opening& opening : openings) {
    const QString name = QString::fromLatin1(opening.name);
    ASSERT_TRUE(std::holds_alternative<QUuid>(there.addCity(name)));
    EXPECT_EQ(picker->findText(name), -1);
    opening.open();
    EXPECT_TRUE(picker->view()->isVisible()) << opening.name;
    EXPECT_GE(picker->findText(name), 1) << opening.name;
    EXPECT_EQ(picker->currentText(), QStringLiteral("Manual"));
    picker->hidePopup();
  }
}

TEST_F(SharedPlaces, AreChosenFromTheOpenList) {
  const QUuid id = std::get<QUuid>(there.addCity(QStringLiteral("Aaa")));
  picker->showPopup();
  QTest::keyClick(picker->view(), Qt::Key_Down);
  QTest::keyClick(picker->view(), Qt::Key_Return);
  EXPECT_EQ(here.selectedCityID(), id);
  EXPECT_EQ(picker->currentText(), QStringLiteral("Aaa"));
}

TEST_F(SharedPlaces, WhatWasDeletedThereIsGoneHere) {
  const model::CityPreset gone = there.cities().at(2);
  there.deleteCity(gone.id);
  EXPECT_NE(picker->findText(gone.name), -1);
  picker->showPopup();
  EXPECT_EQ(picker->findText(gone.name), -1);
  picker->hidePopup();
}

}  // namespace
}  // namespace veyruna::ui
