#include "catalogue/pictures.h"

#include <gtest/gtest.h>

#include <string>

namespace vantorel {
namespace {

// The smallest shapes of the two formats, with something between their
// beginning and their end.
const std::string kJpeg = std::string("\xFF\xD8\xFF\xE0", 4) + std::string(20, 'j') + "\xFF\xD9";
const std::string kGif = std::string("GIF89a") + std::string(7, '\0') + std::string(20, 'g') + "\x3B";

TEST(PictureFiles, OnlyAWholePictureOfItsKindIsRead) {
    // clang-format off
    struct Case { const char* name; std::string bytes; PictureFile kind; bool whole; } cases[] = {
        {"a JPEG", kJpeg, PictureFile::Jpeg, true},
        {"a GIF", kGif, PictureFile::Gif, true},
        {"an old GIF", "GIF87a" + kGif.substr(6), PictureFile::Gif, true},
        {"an empty file", "", PictureFile::Jpeg, false},
        {"an empty GIF", "", PictureFile::Gif, false},
        {"a JPEG cut short", kJpeg.substr(0, kJpeg.size() - 1), PictureFile::Jpeg, false},
        {"a JPEG cut in half", kJpeg.substr(0, kJpeg.size() / 2), PictureFile::Jpeg, false},
        {"a GIF cut short", kGif.substr(0, kGif.size() - 1), PictureFile::Gif, false},
        {"a GIF's header alone", kGif.substr(0, 6), PictureFile::Gif, false},
        {"text under a picture's name", "not a ship\n", PictureFile::Jpeg, false},
        {"text ending in the JPEG's end", "text\xFF\xD9", PictureFile::Jpeg, false},
        {"a GIF under a JPEG's name", kGif, PictureFile::Jpeg, false},
        {"a JPEG under a GIF's name", kJpeg, PictureFile::Gif, false},
        {"the two markers alone", "\xFF\xD8\xFF\xD9", PictureFile::Jpeg, false},
        {"a JPEG larger than any picture", std::string("\xFF\xD8\xFF", 3) + std::string(kLargestPictureFile, 'j') + "\xFF\xD9", PictureFile::Jpeg, false},
        {"a JPEG of the largest size", std::string("\xFF\xD8\xFF", 3) + std::string(kLargestPictureFile - 5, 'j') + "\xFF\xD9", PictureFile::Jpeg, true},
    };
    // clang-format on
    for (const Case& k : cases)
        EXPECT_EQ(IsWholePicture(k.bytes, k.kind), k.whole) << k.name;
}

} // namespace
} // namespace vantorel
