// Trees: finding the last node of a large one by its name and by an expression, against a plain walk that
// compares the texts. In turn, so that a machine whose speed drifts drifts for all.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <vector>

#include "Engine/Adapters/RUXTreeAdapters.h"
#include "bench/BenchEngine.h"
#include "platform/headless/toolkit/HTreeView.h"
#include "rtl/Text.h"

namespace rux::bench {
namespace {

/// A root in a hundred, ten nodes below each, nine below each of those: as deep as trees of applications are.
HCustomTreeView& MakeTree(TBenchEngine& engine, int count) {
    HCustomForm& form = engine.MakeForm(0);
    auto& tree = static_cast<HCustomTreeView&>(form.Own(engine.Kit().MakeAs<HCustomTreeView>("TTreeView")));
    tree.SetBounds({0, 0, 400, 400});
    tree.SetParent(&form);
    HTreeNode* above[] = {nullptr, nullptr, nullptr};
    for (int i = 0; i < count; ++i) {
        const int level = i % 100 == 0 ? 0 : i % 10 == 0 ? 1 : 2;
        HTreeNode*& made = above[level];
        made = &tree.AddNode(level == 0 ? nullptr : above[level - 1], "node" + std::to_string(i));
        if (level == 0) above[1] = made;
    }
    return tree;
}

const HTreeNode* PlainWalk(HCustomTreeView& tree, const std::string& text) {
    HTreeNode* node = tree.Nodes().First();
    while (node && !SameText(node->TextRef(), text)) node = HTreeNodeList::After(*node);
    return node;
}

double Nanoseconds(int repeats, const std::function<void()>& action) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < repeats; ++i) action();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() /
           repeats;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Demand(bool condition) {
    if (!condition) throw std::runtime_error("the node was not found");
}

/// Nanoseconds of a selection by name.
double Measure(int count) {
    TBenchEngine engine;
    HCustomTreeView& tree = MakeTree(engine, count);
    const auto adapter = MakeIntf<TSolviTreeAdapter>(&tree);
    const std::string number = std::to_string(count - 1), last = "node" + number,
                      expression = "n.de" + number;
    const auto select = [&](const std::string& path) {
        tree.Select(nullptr);
        adapter->Select(path);
        Demand(tree.SelectedNode() && tree.SelectedNode()->TextRef() == last);
    };
    std::vector<double> walks, names, expressions;
    for (int round = 0; round < 9; ++round) {
        const int repeats = 500'000 / count;
        walks.push_back(Nanoseconds(repeats, [&] { Demand(PlainWalk(tree, last) != nullptr); }));
        names.push_back(Nanoseconds(repeats, [&] { select(last); }));
        expressions.push_back(Nanoseconds(repeats, [&] { select(expression); }));
    }
    const double walk = Median(walks), name = Median(names), pattern = Median(expressions);
    std::printf(
        "%6d nodes: walk %.1f, Select by name %.1f, by expression %.1f ns a node; ratio %.1f and %.1f\n",
        count, walk / count, name / count, pattern / count, name / walk, pattern / walk);
    return name;
}

}  // namespace
}  // namespace rux::bench

int main() {
    try {
        const double small = rux::bench::Measure(5'000), large = rux::bench::Measure(50'000);
        std::printf("ratio of 50,000 nodes to 5,000, by name: %.1f (10 is linear)\n", large / small);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "bench_trees: " << error.what() << '\n';
        return 2;
    }
}
