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

// A palace cell. The captions hold one text each; a flag says whether the star of that name stands in the
// cell.
struct ChartCell {
    Caption lblPalace;
    Caption lblPalaceSteam;
    Caption lblEarthlyBranches;
    Caption lblMajorStars;
    Caption lblTianFu;
    Caption lblBody;
    Caption lblWenChang;
    Caption lblWenQi;
    Caption lblDiJie;
    Caption lblDiKong;
    Caption lblTaiFu;
    Caption lblFengGao;
    Caption lblZuoFu;
    Caption lblYouBi;
    Caption lblTianYao;
    Caption lblTianXing;
    Caption lblSanTai;
    Caption lblBaZuo;
    Caption lblEnGuang;
    Caption lblTianGui;

    bool lblTianYue = false;
    bool lblJieShen = false;
    bool lblTianWu = false;
    bool lblYinSha = false;
    bool lblLuCun = false;
    bool lblQingYang = false;
    bool lblTuoLuo = false;
    bool lblTianKui = false;
    bool lblTianYueTwo = false;
    bool lblHuaLu = false;
    bool lblHuaQuan = false;
    bool lblHuake = false;
    bool lblHuaJi = false;
    bool lblTianFutwo = false;
    bool lblTianGuan = false;
};

// A caption of a cell under its label's name.
struct CaptionField {
    std::string_view name;
    Caption ChartCell::*field;
};

// A flag of a cell under its label's name, with the text that the label shows where the flag is set.
struct FlagField {
    std::string_view name;
    bool ChartCell::*field;
    std::string_view text;
};

inline constexpr std::array<CaptionField, 20> captionFields{{
    {"lblPalace", &ChartCell::lblPalace},
    {"lblPalaceSteam", &ChartCell::lblPalaceSteam},
    {"lblEarthlyBranches", &ChartCell::lblEarthlyBranches},
    {"lblMajorStars", &ChartCell::lblMajorStars},
    {"lblTianFu", &ChartCell::lblTianFu},
    {"lblBody", &ChartCell::lblBody},
    {"lblWenChang", &ChartCell::lblWenChang},
    {"lblWenQi", &ChartCell::lblWenQi},
    {"lblDiJie", &ChartCell::lblDiJie},
    {"lblDiKong", &ChartCell::lblDiKong},
    {"lblTaiFu", &ChartCell::lblTaiFu},
    {"lblFengGao", &ChartCell::lblFengGao},
    {"lblZuoFu", &ChartCell::lblZuoFu},
    {"lblYouBi", &ChartCell::lblYouBi},
    {"lblTianYao", &ChartCell::lblTianYao},
    {"lblTianXing", &ChartCell::lblTianXing},
    {"lblSanTai", &ChartCell::lblSanTai},
    {"lblBaZuo", &ChartCell::lblBaZuo},
    {"lblEnGuang", &ChartCell::lblEnGuang},
    {"lblTianGui", &ChartCell::lblTianGui},
}};

// "Hua ke" has a small k on purpose. Two texts stand for two different stars each: the month star and the
// year-stem star "Tian Yue", the major star and the year-stem star "Tian Fu".
inline constexpr std::array<FlagField, 15> flagFields{{
    {"lblTianYue", &ChartCell::lblTianYue, "Tian Yue"},
    {"lblJieShen", &ChartCell::lblJieShen, "Jie Shen"},
    {"lblTianWu", &ChartCell::lblTianWu, "Tian Wu"},
    {"lblYinSha", &ChartCell::lblYinSha, "Yin Sha"},
    {"lblLuCun", &ChartCell::lblLuCun, "Lu Cun"},
    {"lblQingYang", &ChartCell::lblQingYang, "Qing Yang"},
    {"lblTuoLuo", &ChartCell::lblTuoLuo, "Tuo Luo"},
    {"lblTianKui", &ChartCell::lblTianKui, "Tian Kui"},
    {"lblTianYueTwo", &ChartCell::lblTianYueTwo, "Tian Yue"},
    {"lblHuaLu", &ChartCell::lblHuaLu, "Hua Lu"},
    {"lblHuaQuan", &ChartCell::lblHuaQuan, "Hua Quan"},
    {"lblHuake", &ChartCell::lblHuake, "Hua ke"},
    {"lblHuaJi", &ChartCell::lblHuaJi, "Hua Ji"},
    {"lblTianFutwo", &ChartCell::lblTianFutwo, "Tian Fu"},
    {"lblTianGuan", &ChartCell::lblTianGuan, "Tian Guan"},
}};

// The stars, in the order of their placement; the chart records the cell of each.
// clang-format off
enum class Star : std::uint8_t {
    ZiWei, TianJi, TaiYang, WuQu, TianTong, LianZhen,                     // the Zi Wei group
    TianFu, TaiYin, TanLang, JuMen, TianXiang, TianLiang, QiSha, PoJun,   // the Tian Fu group
    WenChang, WenQu, DiJie, DiKong, TaiFu, FengGao,                       // the hour stars
    ZuoFu, YouBi, TianYao, TianXing, JieShen, TianWu, TianYue, YinSha,    // the month stars
    SanTai, BaZuo, EnGuang, TianGui,                                      // the day stars
    LuCun, QingYang, TuoLuo, TianKui, TianYueTwo, TianGuan, TianFutwo,    // the year-stem stars
    HuaLu, HuaQuan, Huake, HuaJi,                                         // the transformations
};
// clang-format on
inline constexpr std::size_t starCount = static_cast<std::size_t>(Star::HuaJi) + 1;

// What a person entered, kept as entered: the midnight rule does not touch it. The chart file is written from
// it.
struct ChartInput {
    std::u16string name;  // without blanks at either end
    std::int16_t year = 0;
    std::string_view month;  // its English name
    std::int16_t day = 0;
};

struct ChartModel {
    ChartInput input;
    std::int16_t lunarMonth = 0;  // 1..12, 0 where no look-up has found a number yet
    std::int16_t doubleHour = 0;  // 1 = "Zi" .. 12 = "Hai"
    std::int16_t yearDigit = 0;   // the last decimal digit of the year
    Caption yearStem;
    CellIndex lifePalace;
    CellIndex bodyPalace;
    Caption lblLifePalaceat;  // the branch of the Life Palace's cell
    Caption lblBodyPalaceat;  // the branch of the Body Palace's cell
    Caption lblElement;       // the five-element bureau
    Caption ziWeiBranch;      // kept from chart to chart
    CellIndex ziWeiCell;      // kept from chart to chart; cell 0 before the first
    std::array<CellIndex, starCount> starCells;
    std::array<ChartCell, cellCount> cells;

    ChartModel() { loadCells(); }

    // Puts the cells as a fresh chart window has them: no captions but the branches, no flags.
    void loadCells();

    // Empties every caption of every cell but the branches. Flags and branches keep what they have.
    void clearCaptions();

    ChartCell& cell(CellIndex index) { return cells[index.index()]; }
    const ChartCell& cell(CellIndex index) const { return cells[index.index()]; }
    CellIndex& cellOf(Star star) { return starCells[static_cast<std::size_t>(star)]; }
    CellIndex cellOf(Star star) const { return starCells[static_cast<std::size_t>(star)]; }

    // Writes a star's caption into the cell and records the cell.
    void place(Star star, Caption ChartCell::*field, const Caption& caption, CellIndex where) {
        cell(where).*field = caption;
        cellOf(star) = where;
    }

    // Sets a star's flag in the cell and records the cell.
    void place(Star star, bool ChartCell::*flag, CellIndex where) {
        cell(where).*flag = true;
        cellOf(star) = where;
    }
};
