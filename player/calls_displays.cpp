#include "player/calls.h"
#include "tgx/controls/graph.h"
#include "tgx/controls/progressbar.h"
#include "tgx/controls/vidiprinter.h"

namespace tgx {

namespace {

constexpr Operation rows[] = {
    operation<&AProgressBar::setPercentage>("setPercentage"),
    operation<&AProgressBar::getPercentage>("getPercentage"),
    operation<&AProgressBar::setHorizontal>("setHorizontal"),
    operation<&AProgressBar::getHorizontal>("getHorizontal"),

    operation<&AVidiPrinter::getPrintProgress>("getPrintProgress"),
    operation<&AVidiPrinter::getPrintMode>("getPrintMode"),
    operation<&AVidiPrinter::setPrintMode>("setPrintMode"),
    operation<&AVidiPrinter::getFullText>("getFullText"),

    operation<&AGraph::addData>("addData"),
    operation<&AGraph::removeAll>("removeAll"),
    operation<&AGraph::getItemCount>("getItemCount"),
    operation<&AGraph::getGrowth>("getGrowth"),
    operation<&AGraph::getXRange>("getXRange"),
    operation<&AGraph::getYRange>("getYRange"),
    operation<&AGraph::getLineColour>("getLineColour"),
    operation<&AGraph::setLineColour>("setLineColour"),
    operation<&AGraph::getGridColour>("getGridColour"),
    operation<&AGraph::setGridColour>("setGridColour"),
    operation<&AGraph::getAxisColour>("getAxisColour"),
    operation<&AGraph::setAxisColour>("setAxisColour"),
    operation<&AGraph::getFirstXLabel>("getFirstXLabel"),
    operation<&AGraph::setFirstXLabel>("setFirstXLabel"),
    operation<&AGraph::getStyle>("getStyle"),
    operation<&AGraph::setStyle>("setStyle"),
    operation<&AGraph::getShowEmptyBars>("getShowEmptyBars"),
    operation<&AGraph::setShowEmptyBars>("setShowEmptyBars"),
    operation<&AGraph::getXLabelEvery>("getXLabelEvery"),
    operation<&AGraph::setXLabelEvery>("setXLabelEvery"),
    operation<&AGraph::getYLabelEvery>("getYLabelEvery"),
    operation<&AGraph::setYLabelEvery>("setYLabelEvery"),
    operation<&AGraph::getXGridEvery>("getXGridEvery"),
    operation<&AGraph::setXGridEvery>("setXGridEvery"),
    operation<&AGraph::getYGridEvery>("getYGridEvery"),
    operation<&AGraph::setYGridEvery>("setYGridEvery"),
    operation<&AGraph::getGraphText1>("getGraphText1"),
    operation<&AGraph::setGraphText1>("setGraphText1"),
    operation<&AGraph::getGraphText2>("getGraphText2"),
    operation<&AGraph::setGraphText2>("setGraphText2"),
};

} // namespace

const std::span<const Operation> displayOperations = rows;

} // namespace tgx
