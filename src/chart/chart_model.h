// The chart: twelve palace cells and a few chart-wide values. The placement rules fill it; the chart window
// and the composer of the analysis read it. Fields of a cell bear the names of the labels that show them.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "chart/caption.h"
#include "chart/cell_index.h"

// The earthly branch of each cell.
inline constexpr std::array<Caption, cellCount> branchNames{"Yin",  "Mao", "Chen", "Si",  "Wu", "Wei",
                                                            "Shen", "You", "Xu",   "Hai", "Zi", "Chou"};

// The palaces, laid onto the cells from the Life Palace backwards.
inline constexpr std::array<Caption, 12> palaceNames{"Life Palace", "Siblings", "Marriage", "Children",
                                                     "Wealth",      "Health",   "Travel",   "Friends",
                                                     "Career",      "Property", "Fortune",  "Parents"};

// The stars, in the order in which the accessible name of a cell lists them.
// clang-format off
enum class Star : std::uint8_t {
    ZiWei, TianJi, TaiYang, WuQu, TianTong, LianZhen,                     // the Zi Wei group
    TianFu, TaiYin, TanLang, JuMen, TianXiang, TianLiang, QiSha, PoJun,   // the Tian Fu group
    WenChang, WenQu, DiJie, DiKong, TaiFu, FengGao,                       // the hour stars
    ZuoFu, YouBi, TianYao, TianXing,                                      // the month stars that are captions
    SanTai, BaZuo, EnGuang, TianGui,                                      // the day stars
    TianYue, JieShen, TianWu, YinSha,                                     // the month stars that are flags
    LuCun, QingYang, TuoLuo, TianKui, TianYueTwo,                         // the year-stem stars
    HuaLu, HuaQuan, Huake, HuaJi,                                         // the transformations
    TianFutwo, TianGuan,                                                  // two more year-stem stars
};
// clang-format on
inline constexpr std::size_t starCount = static_cast<std::size_t>(Star::TianGuan) + 1;

// A palace cell, one field for each of its labels. A caption holds the label's text; a flag says whether the
// label is shown, which always has the same text.
struct ChartCell {
    Caption lblPalace, lblPalaceSteam, lblEarthlyBranches, lblBody;
    Caption lblMajorStars, lblTianFu;
    Caption lblWenChang, lblWenQi, lblDiJie, lblDiKong, lblTaiFu, lblFengGao;
    Caption lblZuoFu, lblYouBi, lblTianYao, lblTianXing;
    Caption lblSanTai, lblBaZuo, lblEnGuang, lblTianGui;
    bool lblTianYue = false, lblJieShen = false, lblTianWu = false, lblYinSha = false;
    bool lblLuCun = false, lblQingYang = false, lblTuoLuo = false, lblTianKui = false, lblTianYueTwo = false;
    bool lblHuaLu = false, lblHuaQuan = false, lblHuake = false, lblHuaJi = false;
    bool lblTianFutwo = false, lblTianGuan = false;

    // Whether the star is shown in this cell. It may be left from a previous chart.
    bool holds(Star star) const;
};

// A field of a cell, which is either a caption or a flag, with its label's name and a star's text.
struct CellField {
    std::string_view name;
    Caption ChartCell::*caption;
    bool ChartCell::*flag;
    Caption text;
};

struct StarRow {
    Star star;
    std::string_view name;
    CellField field;
};

// The table of stars. "Tian Yue" and "Tian Fu" are the texts of two different stars each. Intentional: "Hua
// ke" has a small k.
// clang-format off
#define CAPTION(star, text, label) {Star::star, #star, {#label, &ChartCell::label, nullptr, text}}
#define FLAG(star, text, label) {Star::star, #star, {#label, nullptr, &ChartCell::label, text}}
inline constexpr std::array<StarRow, starCount> starTable{{
    CAPTION(ZiWei, "Zi Wei", lblEarthlyBranches),  // stands above the branch
    CAPTION(TianJi, "Tian Ji", lblMajorStars),
    CAPTION(TaiYang, "Tai Yang", lblMajorStars),
    CAPTION(WuQu, "Wu Qu", lblMajorStars),
    CAPTION(TianTong, "Tian Tong", lblMajorStars),
    CAPTION(LianZhen, "Lian Zhen", lblMajorStars),
    CAPTION(TianFu, "Tian Fu", lblTianFu),
    CAPTION(TaiYin, "Tai Yin", lblTianFu),
    CAPTION(TanLang, "Tan Lang", lblTianFu),
    CAPTION(JuMen, "Ju Men", lblTianFu),
    CAPTION(TianXiang, "Tian Xiang", lblTianFu),
    CAPTION(TianLiang, "Tian Liang", lblTianFu),
    CAPTION(QiSha, "Qi Sha", lblTianFu),
    CAPTION(PoJun, "Po Jun", lblTianFu),
    CAPTION(WenChang, "Wen Chang", lblWenChang),
    CAPTION(WenQu, "Wen Qu", lblWenQi),
    CAPTION(DiJie, "Di Jie", lblDiJie),
    CAPTION(DiKong, "Di Kong", lblDiKong),
    CAPTION(TaiFu, "Tai Fu", lblTaiFu),
    CAPTION(FengGao, "Feng Gao", lblFengGao),
    CAPTION(ZuoFu, "Zuo Fu", lblZuoFu),
    CAPTION(YouBi, "You Bi", lblYouBi),
    CAPTION(TianYao, "Tian Yao", lblTianYao),
    CAPTION(TianXing, "Tian Xing", lblTianXing),
    CAPTION(SanTai, "San Tai", lblSanTai),
    CAPTION(BaZuo, "Ba Zuo", lblBaZuo),
    CAPTION(EnGuang, "En Guang", lblEnGuang),
    CAPTION(TianGui, "Tian Gui", lblTianGui),
    FLAG(TianYue, "Tian Yue", lblTianYue),
    FLAG(JieShen, "Jie Shen", lblJieShen),
    FLAG(TianWu, "Tian Wu", lblTianWu),
    FLAG(YinSha, "Yin Sha", lblYinSha),
    FLAG(LuCun, "Lu Cun", lblLuCun),
    FLAG(QingYang, "Qing Yang", lblQingYang),
    FLAG(TuoLuo, "Tuo Luo", lblTuoLuo),
    FLAG(TianKui, "Tian Kui", lblTianKui),
    FLAG(TianYueTwo, "Tian Yue", lblTianYueTwo),
    FLAG(HuaLu, "Hua Lu", lblHuaLu),
    FLAG(HuaQuan, "Hua Quan", lblHuaQuan),
    FLAG(Huake, "Hua ke", lblHuake),
    FLAG(HuaJi, "Hua Ji", lblHuaJi),
    FLAG(TianFutwo, "Tian Fu", lblTianFutwo),
    FLAG(TianGuan, "Tian Guan", lblTianGuan),
}};
// clang-format on
#undef CAPTION
#undef FLAG

// Whether the name is the text without its blanks; the second star of the same text has "Two" appended.
consteval bool isNameFor(std::string_view text, std::string_view name) {
    for (const char letter : text) {
        if (letter == ' ') continue;
        if (!name.starts_with(letter)) return false;
        name.remove_prefix(1);
    }
    return name.empty() || name == "Two" || name == "two";
}

// Whether text and label match the star's name. The major stars share labels, and Wen Qu's is lblWenQi.
consteval bool starTableFits() {
    for (std::size_t i = 0; i < starCount; ++i) {
        const auto& [star, name, field] = starTable[i];
        const std::string_view label = star == Star::ZiWei      ? "EarthlyBranches"
                                       : star <= Star::LianZhen ? "MajorStars"
                                       : star <= Star::PoJun    ? "TianFu"
                                       : star == Star::WenQu    ? "WenQi"
                                                                : name;
        if (star != static_cast<Star>(i) || !isNameFor(field.text.text(), name)) return false;
        if (field.name.substr(3) != label) return false;
    }
    return true;
}
static_assert(starTableFits(), "the stars in their order, each with its own text and its own label");

constexpr const CellField& fieldOf(Star star) { return starTable[static_cast<std::size_t>(star)].field; }

// Each field of a cell once: the three without stars, then those of starTable.
inline constexpr auto cellFields = [] {
    std::array<CellField, 35> fields{{{"lblPalace", &ChartCell::lblPalace, nullptr, ""},
                                      {"lblPalaceSteam", &ChartCell::lblPalaceSteam, nullptr, ""},
                                      {"lblBody", &ChartCell::lblBody, nullptr, ""}}};
    std::size_t last = 2;
    for (const StarRow& row : starTable) {
        if (row.field.name != fields.at(last).name) fields.at(++last) = row.field;
    }
    return fields;
}();

// The birth data as entered, without the midnight rule. It is what the chart file holds.
struct ChartInput {
    std::u16string name;  // without blanks at either end
    std::int16_t year = 0;
    std::string_view month;  // its English name
    std::int16_t day = 0;
};

struct ChartModel {
    ChartInput input;
    std::int16_t lunarMonth = 0;  // 1..12; 0 if no date had a number yet
    std::int16_t doubleHour = 0;  // 1 = "Zi" .. 12 = "Hai"
    std::int16_t yearDigit = 0;   // the last decimal digit of the year
    Caption yearStem;
    CellIndex lifePalace;
    CellIndex bodyPalace;
    Caption lblLifePalaceat;                     // the branch of the Life Palace's cell
    Caption lblBodyPalaceat;                     // the branch of the Body Palace's cell
    Caption lblElement;                          // the five-element bureau
    Caption ziWeiBranch;                         // kept from chart to chart
    std::array<CellIndex, starCount> starCells;  // kept from chart to chart; cell 0 before the first
    std::array<ChartCell, cellCount> cells;

    ChartModel() { loadCells(); }

    // Resets the cells: no captions but the branches, no flags.
    void loadCells();

    // Clears every caption but the branches.
    void clearCaptions();

    ChartCell& cell(CellIndex index) { return cells[index.index()]; }
    const ChartCell& cell(CellIndex index) const { return cells[index.index()]; }
    CellIndex cellOf(Star star) const { return starCells[static_cast<std::size_t>(star)]; }

    // Sets the star's flag or writes its text in the cell, Zi Wei's above the branch, and records the cell.
    void place(Star star, CellIndex where);
};
