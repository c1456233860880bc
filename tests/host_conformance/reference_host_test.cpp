#include "host_conformance/host_conformance.h"
#include "kvopt/host.h"

namespace kvopt {
namespace {

/// A study file, without the ini file beside it.
ConformanceHost File(const std::string& name) {
    std::string testName = name;
    for (char& c : testName) {
        c = c == '-' ? '_' : c;
    }
    return {testName, [name] {
                return std::make_unique<ReferenceStudy>(ReadStudyFile(
                    std::string(KVOPT_SOURCE_DIR) + "/examples/studies/" + name + ".json"));
            }};
}

ConformanceHost Built(const std::string& name, const StudyBuilder& builder) {
    return {name, [builder] { return builder.Build(); }};
}

StudyBuilder Empty() {
    return StudyBuilder("empty");
}

StudyBuilder WithoutModels() {
    StudyBuilder builder("no models");
    builder.Process("a", 0, 1).Qualitative("q", {"x", "y"}).Response("y").Response("z");
    return builder;
}

StudyBuilder NotYetRun() {
    StudyBuilder builder("not yet run");
    builder.Process("a", 0, 1).Process("b", 0, 1).Response("y").Model({"A", "B"});
    return builder;
}

StudyBuilder EveryKind() {
    StudyBuilder builder("every kind");
    builder.MixtureTotal(100).Locked().RandomBlocks();
    builder.Process("p", -3, -1, "mm").Precision(0.1);
    builder.Multilevel("m", {1, 2, 4}).Exclude("2");
    builder.Qualitative("q", {"x", "y", "z"}).Exclude("x");
    builder.MixturePart("s", 10, 40).MixturePart("l", 5, 20).Filler("w", 30, 85);
    builder.Discrete("d", {0, 5, 10}).Covariate("c", 0, 100);
    builder.Process("k", 7, 7).Use(CEUse::Constant).Blocks({"Mon", "Tue"});
    builder.Response("y").Limits(1, 9, 5).Model({"$B", "A", "B", "C", "D", "E", "G", "H", "A*C"});
    builder.Response("z").Limits(kNotSet, 3).Model({"A", "A^2"});
    builder.Response("bare");
    builder.DerivedResponse("r", {"y", "z"}).CombinedResponse("o", {"y"}).ExternalResponse("e");
    builder.Constraint({{"p", 1}, {"d", -2}}, -20, kNotSet);
    builder.Favourite("p", -2).Favourite("q", "y").Select({"z", "r"});
    for (int run = 0; run < 24; ++run) {
        const double part = 10 + 10 * (run % 4);
        builder.Run({-3 + run % 3, run % 2 == 0 ? 1 : 4,
                     run % 3 == 0 ? "x" : (run % 3 == 1 ? "y" : "z"), part, 5 + run % 5,
                     95 - part - run % 5, 5 * (run % 3), 3 * run, 7, run < 12 ? "Mon" : "Tue",
                     1 + run % 7, 2 + run % 5, nullptr});
    }
    return builder;
}

StudyBuilder OddNames() {
    StudyBuilder builder(" odd ");
    builder.Process(" blanks ", 0, 1, " u ").Abbreviation("=");
    builder.Process("a=b;[c]#\"d\"\\e/f.g", 1e-300, 1e300).Abbreviation("[;]");
    builder.Qualitative("two\nlines", {"\n", ";", " x ", "\xE6\xB8\xA9\xE5\xBA\xA6"});
    builder.Process("%s%1%", -1e-9, 1e-9).Process("\xF0\x9F\x8C\xA1", 0.123456789, 0.987654321);
    builder.Response("y\t").Model({"=", "[;]", "=*A"}).Response("100 %").Model({"B"});
    builder.Run({0, 1, "\n", 0, 0.5, 1, 2})
        .Run({1, 2, ";", 0, 0.5, 2, 3})
        .Run({0, 3, " x ", 0, 0.2, 4, 4});
    return builder;
}

StudyBuilder TrueFiller() {
    StudyBuilder builder("true filler");
    builder.MixturePart("a", 0.0, 0.1).MixturePart("b", 0.05, 0.2).Filler("water", 0.6, 1.0);
    builder.Response("y").Model({"A", "B"});
    builder.Run({0, 0.05, 0.95, 1}).Run({0.1, 0.05, 0.85, 2}).Run({0.1, 0.2, 0.7, 4});
    return builder;
}

StudyBuilder PseudoComponents() {
    StudyBuilder builder("pseudo-components");
    builder.PseudoComponents().MixturePart("a", 0.2, 0.6).MixturePart("b", 0.1, 0.5);
    builder.MixturePart("c", 0.3, 0.7).Response("y").Model({"A", "B", "C"}, false);
    builder.Run({0.6, 0.1, 0.3, 1}).Run({0.2, 0.5, 0.3, 2}).Run({0.2, 0.1, 0.7, 3});
    return builder;
}

INSTANTIATE_TEST_SUITE_P(
    StudyFiles, HostConformance,
    testing::Values(File("cast-fatigue-plackett-burman-12"), File("chemical-reaction-ccd-2-blocks"),
                    File("concrete-mixture-6-components-5-responses"),
                    File("electron-microscope-2-8-4"), File("paper-helicopter-ccd-blocked"),
                    File("rubber-cure-lab-mix-temperature"),
                    File("snee-marquardt-8-component-screening"), File("sonoluminescence-2-7-3"),
                    File("tire-tread-ccd-4-responses"), File("vinyl-thickness-mixture-process"),
                    File("wool-yarn-3-level-log-response"),
                    File("yarn-elongation-simplex-lattice")),
    ConformanceName);

INSTANTIATE_TEST_SUITE_P(
    Built, HostConformance,
    testing::Values(Built("empty", Empty()), Built("without_models", WithoutModels()),
                    Built("not_yet_run", NotYetRun()), Built("every_kind", EveryKind()),
                    Built("odd_names", OddNames()), Built("true_filler", TrueFiller()),
                    Built("pseudo_components", PseudoComponents())),
    ConformanceName);

}  // namespace
}  // namespace kvopt
