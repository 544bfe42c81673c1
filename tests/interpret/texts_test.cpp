// The interpretation texts: those that are fixed stand to the letter, the others keep their measure.

#include "interpret/texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <vector>

#include "chart_text.h"

namespace {

TEST(Texts, StandToTheLetterWhereTheyAreFixed) {
    std::vector<std::string_view> fixed{introText, bodyPalaceText};
    for (const auto& [key, heading, text] : palaceTexts) fixed.insert(fixed.end(), {heading, text});
    for (const auto& [star, heading, text] : starTexts) fixed.insert(fixed.end(), {heading, text});
    const auto& [ziWei, tianJi, tianXing, qiSha] =
        std::tie(starInPalaceTexts[0], starInPalaceTexts[1], starInPalaceTexts[10], starInPalaceTexts[12]);
    fixed.insert(fixed.end(), {ziWei[4], ziWei[5], tianJi[2], tianJi[7], tianJi[8], tianJi[9], qiSha[6],
                               tianXing[10], tianXing[11]});
    std::uint64_t sum = emptyDigest;
    for (const std::string_view text : fixed) sum = digest("\n", digest(text, sum));
    EXPECT_EQ(sum, 0xf4a91e8c5adec647);  // of the fixed texts
    EXPECT_EQ(introText.size(), 402U);
    for (const std::size_t palace : {7U, 8U, 9U}) EXPECT_EQ(tianXing[palace], tianJi[palace]);
    EXPECT_EQ(std::string{tianXing[10]} + " ", tianJi[10]);
    EXPECT_EQ("Tian Ji" + std::string{tianXing[11].substr(9)}, tianJi[11]);
}

TEST(Texts, KeepTheirMeasure) {
    std::vector<std::string_view> slots{introText, bodyPalaceText};
    for (const PalaceText& palace : palaceTexts) slots.push_back(palace.description);
    for (const StarText& star : starTexts) slots.push_back(star.general);
    std::string inPalaces;
    for (const auto& star : starInPalaceTexts) {
        for (const std::string_view text : star) {
            slots.push_back(text);
            inPalaces.append(text) += '\n';
            EXPECT_GE(text.size(), 54U) << text;  // the shortest is one of the fixed ones
            EXPECT_LE(text.size(), 300U) << text;
        }
    }
    EXPECT_EQ(slots.size(), 183U);
    EXPECT_EQ(std::set(slots.begin(), slots.end()).size(), 180U);
    std::size_t total = 0;
    for (const std::string_view text : slots) total += text.size();
    EXPECT_TRUE(total >= 29'000 && total <= 31'000) << total;
    for (const char* slip : {"Tiang Tong", "Tian Fun", "l or 2", "o the cards"}) {
        EXPECT_NE(inPalaces.find(slip), std::string::npos) << slip;
        EXPECT_EQ(inPalaces.find(slip), inPalaces.rfind(slip)) << slip;
    }
}

// The first six words, the names of the star and the palace aside.
std::string opening(std::string text, std::string_view starHeading) {
    const std::string star{starHeading.substr(0, starHeading.find(" Star"))};
    for (auto at = text.find(star); at != text.npos; at = text.find(star)) text.erase(at, star.size());
    std::istringstream all{std::regex_replace(text, std::regex{"[A-Za-z']+ (?=[Pp]alace)"}, "")};
    std::string words;
    int count = 0;
    for (std::string word; count < 6 && all >> word; ++count) words += word + ' ';
    return words;
}

TEST(Texts, DoNotOpenAlike) {
    std::map<std::string, std::set<std::string_view>> openings;
    for (std::size_t star = 0; star < starTextCount; ++star) {
        for (const auto& text : starInPalaceTexts[star])
            openings[opening(std::string{text}, starTexts[star].heading)].insert(text);
    }
    for (const auto& [words, texts] : openings) EXPECT_LE(texts.size(), 2U) << words;
}

}  // namespace
