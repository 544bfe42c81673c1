#include "chart/chart_model.h"

bool ChartCell::holds(Star star) const {
    const CellField& field = fieldOf(star);
    if (field.flag != nullptr) return this->*field.flag;
    return (this->*field.caption).text().starts_with(field.text.text());
}

void ChartModel::loadCells() {
    for (const CellIndex index : allCells) {
        cell(index) = ChartCell{};
        cell(index).lblEarthlyBranches = branchNames[index.index()];
    }
}

void ChartModel::clearCaptions() {
    for (ChartCell& cell : cells) static_cast<CellCaptions&>(cell) = {};
}

void ChartModel::place(Star star, CellIndex where) {
    const CellField& field = fieldOf(star);
    ChartCell& target = cell(where);
    if (field.flag != nullptr) {
        target.*field.flag = true;
    } else {
        const bool aboveBranch = field.caption == &ChartCell::lblEarthlyBranches;
        target.*field.caption = aboveBranch ? stacked(field.text, target.lblEarthlyBranches) : field.text;
    }
    starCells[static_cast<std::size_t>(star)] = where;
}
