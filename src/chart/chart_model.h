// The chart: twelve palace cells and a few values of the whole. The placement rules fill it; the chart window
// and the composer read it. Fields are named after the labels that show them. Intentional: "Steam" and "Qi".
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
// label is shown, which always has the same text. Every chart begins with empty CellCaptions.
struct CellCaptions {
    Caption lblPalace, lblPalaceSteam, lblBody;
    Caption lblMajorStars, lblTianFu;
    Caption lblWenChang, lblWenQi, lblDiJie, lblDiKong, lblTaiFu, lblFengGao;
    Caption lblZuoFu, lblYouBi, lblTianYao, lblTianXing;
    Caption lblSanTai, lblBaZuo, lblEnGuang, lblTianGui;
};
struct ChartCell : CellCaptions {
    Caption lblEarthlyBranches;
    bool lblTianYue = false, lblJieShen = false, lblTianWu = false, lblYinSha = false;
    bool lblLuCun = false, lblQingYang = false, lblTuoLuo = false, lblTianKui = false, lblTianYueTwo = false;
    bool lblHuaLu = false, lblHuaQuan = false, lblHuake = false, lblHuaJi = false;
    bool lblTianFutwo = false, lblTianGuan = false;

    // Whether the star is shown in this cell, be it by a flag that a previous chart has left.
    bool holds(Star star) const;
};

// A field of a cell, with its label's name and its star's text. Of the two pointers to it, one is null.
struct CellField {
    std::string_view name;
    Caption ChartCell::*caption;
    bool ChartCell::*flag;
    Caption text;
};

struct StarRow {
    Star star;
    CellField field;
};

// The table of stars. Most have a label of their own; the major stars share three. "Tian Yue" and "Tian Fu"
// are the texts of two different stars each. Intentional: "Hua ke" has a small k.
// clang-format off
#define CAPTION_IN(star, text, label) {Star::star, {#label, &ChartCell::label, nullptr, text}}
#define CAPTION(star, text) CAPTION_IN(star, text, lbl##star)
#define FLAG(star, text) {Star::star, {"lbl" #star, nullptr, &ChartCell::lbl##star, text}}
inline constexpr std::array<StarRow, starCount> starTable{{
    CAPTION_IN(ZiWei, "Zi Wei", lblEarthlyBranches),  // stands above the branch
    CAPTION_IN(TianJi, "Tian Ji", lblMajorStars),
    CAPTION_IN(TaiYang, "Tai Yang", lblMajorStars),
    CAPTION_IN(WuQu, "Wu Qu", lblMajorStars),
    CAPTION_IN(TianTong, "Tian Tong", lblMajorStars),
    CAPTION_IN(LianZhen, "Lian Zhen", lblMajorStars),
    CAPTION_IN(TianFu, "Tian Fu", lblTianFu),
    CAPTION_IN(TaiYin, "Tai Yin", lblTianFu),
    CAPTION_IN(TanLang, "Tan Lang", lblTianFu),
    CAPTION_IN(JuMen, "Ju Men", lblTianFu),
    CAPTION_IN(TianXiang, "Tian Xiang", lblTianFu),
    CAPTION_IN(TianLiang, "Tian Liang", lblTianFu),
    CAPTION_IN(QiSha, "Qi Sha", lblTianFu),
    CAPTION_IN(PoJun, "Po Jun", lblTianFu),
    CAPTION(WenChang, "Wen Chang"),
    CAPTION_IN(WenQu, "Wen Qu", lblWenQi),
    CAPTION(DiJie, "Di Jie"),
    CAPTION(DiKong, "Di Kong"),
    CAPTION(TaiFu, "Tai Fu"),
    CAPTION(FengGao, "Feng Gao"),
    CAPTION(ZuoFu, "Zuo Fu"),
    CAPTION(YouBi, "You Bi"),
    CAPTION(TianYao, "Tian Yao"),
    CAPTION(TianXing, "Tian Xing"),
    CAPTION(SanTai, "San Tai"),
    CAPTION(BaZuo, "Ba Zuo"),
    CAPTION(EnGuang, "En Guang"),
    CAPTION(TianGui, "Tian Gui"),
    FLAG(TianYue, "Tian Yue"),
    FLAG(JieShen, "Jie Shen"),
    FLAG(TianWu, "Tian Wu"),
    FLAG(YinSha, "Yin Sha"),
    FLAG(LuCun, "Lu Cun"),
    FLAG(QingYang, "Qing Yang"),
    FLAG(TuoLuo, "Tuo Luo"),
    FLAG(TianKui, "Tian Kui"),
    FLAG(TianYueTwo, "Tian Yue"),
    FLAG(HuaLu, "Hua Lu"),
    FLAG(HuaQuan, "Hua Quan"),
    FLAG(Huake, "Hua ke"),
    FLAG(HuaJi, "Hua Ji"),
    FLAG(TianFutwo, "Tian Fu"),
    FLAG(TianGuan, "Tian Guan"),
}};
// clang-format on
#undef CAPTION_IN
#undef CAPTION
#undef FLAG

consteval bool starsAreInOrder() {
    for (std::size_t i = 0; i < starCount; ++i) {
        if (starTable[i].star != static_cast<Star>(i)) return false;
    }
    return true;
}
static_assert(starsAreInOrder());

constexpr const CellField& fieldOf(Star star) { return starTable[static_cast<std::size_t>(star)].field; }

// Each field of a cell once: the three without stars, then those of starTable, in which rows of one field are
// adjacent.
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
    Caption ziWeiBranch;                         // the branch of Zi Wei's cell; kept from chart to chart
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
