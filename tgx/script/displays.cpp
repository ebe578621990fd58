// Statements that make line graphs, and the one that sets the attributes of graphs.

#include "tgx/controls/graph.h"
#include "tgx/script/statements.h"

namespace tgx {

AWnd* lineGraph(AWnd& target, const ScriptLine& line)
{
    auto* made = addControl<AGraph>(target, line);
    made->setStyle(1);
    return made;
}

// Attributes whose tokens are left out do not change.
void graphInfo(AGraph& target, const ScriptLine& line)
{
    if (line.count > 1)
        target.setGraphText1(line.text(1));
    if (line.count > 2)
        target.setGraphText2(line.text(2));
    if (line.count > 3)
        target.setXLabelEvery(line.number(3));
    if (line.count > 4)
        target.setYLabelEvery(line.number(4));
    if (line.count > 5)
        target.setYGridEvery(line.number(5));
    if (line.count > 6)
        target.setXGridEvery(line.number(6));
    if (line.count > 7)
        target.setShowEmptyBars(line.number(7));
}

} // namespace tgx
