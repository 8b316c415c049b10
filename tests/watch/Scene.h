// One cell of the matrix of windows and options: a request that brings up a window, what becomes of both, and
// what the next request hears of it. A program is linked with one player of scenes.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace rux::test {

/// Why this player cannot play a situation; empty when it can.
std::string WhyNot(std::string_view situation);
/// As much of a cell as this player can see.
std::string SeenOf(std::string_view cell);

/// Plays one cell: "when the answer came, the answer | window, picture | next request | stack". `answerTime`
/// is when the answer must come: 'R' on the call's return before the window, 'W' with the window, 'E' when
/// the situation has been ended, 'H' after the hour.
std::string PlayScene(std::string_view situation, std::string_view option, char answerTime);

/// "320x140 many" or "320x140 flat", by the count of colours that a person would tell apart; or why the file
/// is no picture.
std::string DescribeJpeg(const std::string& file);

/// How the texts of one scene are told in a cell, whoever plays it.
struct TSceneTexts {
    std::string Request;
    /// Of the window.
    std::string Description;

    std::string PictureName() const;
    /// An answer by short names: "window" for the description with its picture, "ok" for a request that hears
    /// nothing.
    std::string Short(std::string answer) const;
    /// What lies in the folder, "picture" for the one that is due, if it has that size.
    std::string Pictures(const std::filesystem::path& folder, const std::string& size) const;
    /// "StactCount:" and the count when the request was taken off the stack, or "stays".
    std::string Popped(const std::string& log) const;
};

}  // namespace rux::test
