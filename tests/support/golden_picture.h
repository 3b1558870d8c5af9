#pragma once

#include <QFile>
#include <QImage>
#include <QString>
#include <gtest/gtest.h>
#include <string>

#include "tests/support/picture_difference.h"
#include "tests/support/source_path.h"

namespace veyruna::tests {

/// A golden picture of tests/export/golden by its chart's name.
inline QString goldenPicturePath(const std::string& chart) {
  return QString::fromStdString(sourcePath("tests/export/golden/" + chart + ".png"));
}

/// Whether a picture looks as the golden one: squares of so many pixels differ by less than `most`
/// on the average and in share. Where it does not, it is left beside the golden one, to be looked
/// at.
inline testing::AssertionResult looksGolden(const QImage& picture, const std::string& chart,
                                            int square, const PictureDifference& most) {
  const QString path = goldenPicturePath(chart);
  const QImage golden(path);
  const QString received = path + QStringLiteral(".received");
  QFile::remove(received);
  if (picture.size() != golden.size()) {
    return testing::AssertionFailure()
           << "a picture of " << picture.width() << " x " << picture.height() << " pixels";
  }
  const PictureDifference found = differenceOf(picture, golden, square);
  if (found.mean < most.mean && found.different < most.different) {
    return testing::AssertionSuccess();
  }
  picture.save(received, "PNG");
  return testing::AssertionFailure()
         << qPrintable(received) << ": " << found.mean << " levels, " << found.different
         << " of the squares; to draw the golden one anew: tests/export/golden/make_golden";
}

}  // namespace veyruna::tests
