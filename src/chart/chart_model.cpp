#include "chart/chart_model.h"

void ChartModel::loadCells() {
    for (const CellIndex index : allCells) {
        cell(index) = ChartCell{};
        cell(index).lblEarthlyBranches = branchNames[index.index()];
    }
}

void ChartModel::clearCaptions() {
    for (ChartCell& cell : cells) {
        const Caption branch = cell.lblEarthlyBranches;
        for (const CaptionField& caption : captionFields) cell.*caption.field = Caption{};
        cell.lblEarthlyBranches = branch;
    }
}
