#include "Chart.h"

#include "Results.h"
#include "Scopes.h"

#include <cmath>
#include <fstream>

namespace {

struct Series {
    const char* benchmark;
    const char* colour;
};

constexpr Series kSeries[] = {
    {"IsNameUniqueInSet/platform", "#1f77b4"},
    {"IsNameUniqueInSet/extension", "#9467bd"},
    {"GetNextUniqueName/platform", "#2ca02c"},
    {"GetNextUniqueName/extension", "#ff7f0e"},
    {"Floor/compare", "#7f7f7f"},
    {"Floor/prefix", "#bcbd22"},
};

// First and last decade of the axes (features, nanoseconds), and the size of a decade in pixels.
constexpr double kFirstSize = 3, kLastSize = 5, kFirstTime = 3, kLastTime = 8, kDecadeX = 220, kDecadeY = 70;
constexpr double kLeft = 80, kTop = 20, kRight = kLeft + (kLastSize - kFirstSize) * kDecadeX,
                 kBottom = kTop + (kLastTime - kFirstTime) * kDecadeY;

double X(double size) { return kLeft + (std::log10(size) - kFirstSize) * kDecadeX; }
double Y(double time) { return kBottom - (std::log10(time) - kFirstTime) * kDecadeY; }

void Line(std::ostream& out, double x1, double y1, double x2, double y2) {
    out << "<line x1='" << x1 << "' y1='" << y1 << "' x2='" << x2 << "' y2='" << y2 << "' stroke='#ddd'/>\n";
}

void Text(std::ostream& out, double x, double y, const std::string& text, const char* colour = "#333") {
    out << "<text x='" << x << "' y='" << y << "' fill='" << colour << "'>" << text << "</text>\n";
}

void DrawGrid(std::ostream& out) {
    constexpr const char* kTimes[] = {"1 us", "10 us", "100 us", "1 ms", "10 ms", "100 ms"};
    constexpr const char* kSizes[] = {"1,000", "10,000", "100,000"};
    double y = kBottom;
    for (const char* label : kTimes) {
        Line(out, kLeft, y, kRight, y);
        Text(out, 15, y + 4, label);
        y -= kDecadeY;
    }
    double x = kLeft;
    for (const char* label : kSizes) {
        Line(out, x, kTop, x, kBottom);
        Text(out, x - 20, kBottom + 20, label);
        x += kDecadeX;
    }
    Text(out, kLeft + kDecadeX - 50, kBottom + 40, "features in the scope");
}

void DrawSeries(std::ostream& out, const Series& series, const Results& results) {
    out << "<polyline fill='none' stroke-width='2' stroke='" << series.colour << "' points='";
    for (const int size : Scopes::kSizes)
        if (const auto time = results.Value(BenchmarkName(series.benchmark, size)))
            out << X(size) << ',' << Y(*time) << ' ';
    out << "'/>\n";
}

} // namespace

void WriteChart(const std::filesystem::path& file, const Results& results) {
    std::ofstream out(file);
    out << "<svg xmlns='http://www.w3.org/2000/svg' width='" << kRight + 240 << "' height='" << kBottom + 60
        << "' font-family='sans-serif' font-size='12'>\n<rect width='100%' height='100%' fill='white'/>\n";
    DrawGrid(out);
    double y = kTop + 20;
    for (const Series& series : kSeries) {
        DrawSeries(out, series, results);
        Text(out, kRight + 20, y, series.benchmark, series.colour);
        y += 20;
    }
    out << "</svg>\n";
}
