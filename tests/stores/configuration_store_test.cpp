#include "kvopt/stores/configuration_store.h"

#include <gtest/gtest.h>

#include "stores/store_test_support.h"

namespace kvopt {
namespace {

TEST(ConfigurationStore, WritesOneLineForEachKey) {
    ConfigurationStore store;
    const auto root = store.Root();
    root->WriteKey("PlotType", 4);
    const auto child = root->GetSection("ContourPlotData");
    child->WriteKey("Min", -0.0);
    root->GetIndexedSection("Constant", 2)->WriteKey("Name", "\xFF");
    const std::string text = store.Text();
    EXPECT_EQ(text,
              "{\n"
              " \"kvopt\": \"sections\",\n"
              " \"version\": 1,\n"
              " \"keys\": [\n"
              "  [\"PlotType\", \"int\", \"4\"]],\n"
              " \"sections\": [\n"
              "  {\"name\": \"ContourPlotData\",\n"
              "   \"keys\": [\n"
              "    [\"Min\", \"double\", \"-0\"]]},\n"
              "  {\"name\": \"Constant\", \"number\": 2,\n"
              "   \"keys\": [\n"
              "    [\"Name\", \"text\", {\"bytes\": \"ff\"}]]}]\n"
              "}\n");
    EXPECT_EQ(ConfigurationStore::Parse(text, "x").Text(), text);
}

}  // namespace
}  // namespace kvopt
