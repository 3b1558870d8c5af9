#pragma once

#include <QImage>
#include <QList>
#include <gtest/gtest.h>
#include <string>

namespace veyruna::tests {

/// Whether a picture is, pixel by pixel and within three levels of 255, the golden one of
/// tests/ui/pictures. Where it is not, it is left beside it as NAME.received, with the pixels that
/// differ in red on it as NAME.difference, and the failure prints the command that accepts it.
testing::AssertionResult isGoldenLook(const QImage& picture, const std::string& name);

/// Pictures in rows, on a ground of this colour.
QImage sheetOf(const QList<QList<QImage>>& rows, const QColor& ground);

}  // namespace veyruna::tests
