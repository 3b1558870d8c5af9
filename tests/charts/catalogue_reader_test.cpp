#include "charts/catalogue_reader.h"

#include <gtest/gtest.h>

namespace veyruna::charts {
namespace {

const std::string starHeader = "name,frame,color,phi,theta,magnitude\n";

/// What the reader says about a file with this line under a good header and a good first row.
std::string refusalOf(const std::string& line) {
  try {
    readStars(starHeader + "_WEN1,equatorial,#f4f4f3,1.5,0.25,2.7\n" + line + "\n");
  } catch (const CatalogueError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(ReadStars, RowsBecomeStarsInTheirOrder) {
  const auto stars = readStars(starHeader +
                               "_WEN1,equatorial,#f4f4f3,1.5,0.25,2.70\n"
                               "The Old Gate,ecliptic,#FEF651,-2.5e-1,0,0\n");
  ASSERT_EQ(stars.size(), 2U);
  EXPECT_EQ(stars[0].name, "_WEN1");
  EXPECT_EQ(stars[0].color, "#f4f4f3");
  EXPECT_EQ(stars[0].magnitude, 2.7);
  EXPECT_EQ(stars[1].name, "The Old Gate");
  EXPECT_EQ(stars[1].color, "#FEF651");
  EXPECT_EQ(stars[1].ec.phi, -0.25);
  EXPECT_EQ(stars[1].ec.theta, 0.0);
  EXPECT_EQ(stars[1].magnitude, 0.0);
}

TEST(ReadStars, TheFrameDecidesWhatTheAnglesMean) {
  const auto stars = readStars(starHeader +
                               "Far,equatorial,#f4f4f3,1.5,0.25,1\n"
                               "Near,ecliptic,#f4f4f3,1.5,0.25,1\n");
  EXPECT_EQ(stars[0].eq.phi, 1.5);
  EXPECT_EQ(stars[0].eq.theta, 0.25);
  EXPECT_EQ(stars[1].ec.phi, 1.5);
  EXPECT_EQ(stars[1].ec.theta, 0.25);
  EXPECT_NE(stars[0].ec.phi, 1.5);
}

TEST(ReadStars, TheLastLineMayLackItsEnd) {
  EXPECT_EQ(readStars(starHeader + "Far,equatorial,#f4f4f3,1,0,1").size(), 1U);
  EXPECT_EQ(readStars(starHeader + "Far,equatorial,#f4f4f3,1,0,1\n").size(), 1U);
}

TEST(ReadStars, AHeaderAloneIsAnEmptySky) {
  EXPECT_TRUE(readStars(starHeader).empty());
}

class BadStarLine : public testing::TestWithParam<const char*> {};

TEST_P(BadStarLine, IsRefusedAndQuoted) {
  const std::string message = refusalOf(GetParam());
  EXPECT_NE(message.find('"' + std::string(GetParam()) + '"'), std::string::npos) << message;
  EXPECT_EQ(message.find("_WEN1,"), std::string::npos) << "a good line is quoted: " << message;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadStarLine,
    testing::Values("", "Far,equatorial,#f4f4f3,1,0", "Far,equatorial,#f4f4f3,1,0,1,",
                    "Far, Lost,equatorial,#f4f4f3,1,0,1", "Far,horizontal,#f4f4f3,1,0,1",
                    "Far,Equatorial,#f4f4f3,1,0,1", "Far,,#f4f4f3,1,0,1",
                    "Far,equatorial,f4f4f3,1,0,1", "Far,equatorial,#f4f4f,1,0,1",
                    "Far,equatorial,#f4f4f33,1,0,1", "Far,equatorial,#f4f4g3,1,0,1",
                    "Far,equatorial,white,1,0,1", "Far,equatorial,,1,0,1",
                    "Far,equatorial,#f4f4f3,,0,1", "Far,equatorial,#f4f4f3,1,zero,1",
                    "Far,equatorial,#f4f4f3,1,0,1 ", "Far,equatorial,#f4f4f3, 1,0,1",
                    "Far,equatorial,#f4f4f3,1,0,1x", "Far,equatorial,#f4f4f3,nan,0,1",
                    "Far,equatorial,#f4f4f3,1,inf,1", "Far,equatorial,#f4f4f3,1e999,0,1",
                    "Far,equatorial,#f4f4f3,1,0,-", "Far,equatorial,#f4f4f3,1,0,1\r"));

TEST(ReadStars, TheHeaderIsPartOfTheForm) {
  for (const char* const header :
       {"", "name,frame,color,phi,theta", "Name,frame,color,phi,theta,magnitude",
        "name,frame,color,phi,theta,magnitude\r"}) {
    try {
      readStars(std::string(header) + "\nFar,equatorial,#f4f4f3,1,0,1\n");
      ADD_FAILURE() << "accepted: " << header;
    } catch (const CatalogueError& error) {
      const std::string message = error.what();
      EXPECT_NE(message.find('"' + std::string(header) + '"'), std::string::npos) << message;
    }
  }
  EXPECT_THROW(readStars(""), CatalogueError);
}

TEST(ReadLineNames, RowsBecomePairsInTheirOrder) {
  const auto names = readLineNames("from,to\n_WEN1,_WEN2\n_WEN2,_WEN7\n");
  ASSERT_EQ(names.size(), 2U);
  EXPECT_EQ(names[0], LineNames("_WEN1", "_WEN2"));
  EXPECT_EQ(names[1], LineNames("_WEN2", "_WEN7"));
  EXPECT_TRUE(readLineNames("from,to\n").empty());
}

TEST(ReadLineNames, BadLinesAreRefusedAndQuoted) {
  for (const std::string line : {"_WEN1", "_WEN1,_WEN2,_WEN3", ""}) {
    try {
      readLineNames("from,to\n" + line + "\n");
      ADD_FAILURE() << "accepted: " << line;
    } catch (const CatalogueError& error) {
      const std::string message = error.what();
      EXPECT_NE(message.find('"' + line + '"'), std::string::npos) << message;
    }
  }
  EXPECT_THROW(readLineNames("to,from\n"), CatalogueError);
}

}  // namespace
}  // namespace veyruna::charts
