// Settings document at scale: parse, look-ups and merge of documents from 1,000 to 100,000
// sections, each printed as a ratio to the parse time of the same document, so linear growth
// shows as ratios that stay flat. With inih available, our parse is also compared with its parse
// of the same bytes (inih only calls back; ours also converts and stores).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "store/ini_document.h"

#ifdef CV2_BENCH_INIH
#include <ini.h>
#endif

namespace {

double Now() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

// The smallest of several runs: the run least disturbed by the rest of the machine.
template <class F> double Fastest(int runs, F work) {
    double best = 1e30;
    for (int i = 0; i < runs; ++i) {
        const double start = Now();
        work();
        best = std::min(best, Now() - start);
    }
    return best;
}

std::string MakeText(int sections, int keys) {
    std::string text;
    for (int s = 0; s < sections; ++s) {
        text += "[Section " + std::to_string(s) + "]\r\n";
        for (int k = 0; k < keys; ++k)
            text += "Key " + std::to_string(k) + "=value " + std::to_string(s) + "," +
                    std::to_string(k) + "\r\n";
        text += "\r\n";
    }
    return text;
}

void Measure(int sections, int keys, int runs) {
    const std::string text = MakeText(sections, keys);
    const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
    cv2::IniDocument doc;
    const double parse = Fastest(runs, [&] { doc.Parse(bytes, text.size()); });

    // 1,000 look-ups spread over the whole document (the first one also builds the index).
    std::vector<std::wstring> names;
    for (int i = 0; i < 1000; ++i)
        names.push_back(L"section " + std::to_wstring((i * 7919L) % sections));
    long sum = 0;
    double lookups = 1e30;
    for (int run = 0; run < runs; ++run) {
        cv2::IniDocument fresh;
        fresh.Parse(bytes, text.size());
        const double start = Now();
        for (const std::wstring& name : names)
            sum += static_cast<long>(fresh.GetString(name.c_str(), L"KEY 0", L"").size());
        lookups = std::min(lookups, Now() - start);
    }

    const double merge = Fastest(runs, [&] {
        cv2::IniDocument target;
        target.MergeFrom(doc, false);
    });
    std::printf("%8d x %2d keys  %7.2f MB  parse %8.2f ms  1,000 look-ups %5.2f x parse"
                "  merge %5.2f x parse  (%ld)\n",
                sections, keys, text.size() / 1e6, parse * 1e3, lookups / parse, merge / parse,
                sum % 10);
}

#ifdef CV2_BENCH_INIH
void CompareWithInih(int sections, int keys, int runs) {
    const std::string text = MakeText(sections, keys);
    cv2::IniDocument doc;
    const double ours = Fastest(
        runs, [&] { doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size()); });
    long pairs = 0;
    const double inih = Fastest(runs, [&] {
        ini_parse_string(
            text.c_str(),
            [](void* user, const char*, const char*, const char*) {
                ++*static_cast<long*>(user);
                return 1;
            },
            &pairs);
    });
    std::printf("parse of %.2f MB: ours %.2f ms, inih %.2f ms, ratio %.2f\n", text.size() / 1e6,
                ours * 1e3, inih * 1e3, ours / inih);
}
#endif

} // namespace

int main() {
    std::printf("settings document: times as ratios to the parse of the same document\n");
    for (int sections : {1000, 10000, 100000})
        Measure(sections, 1, 5);
    for (int sections : {1000, 10000, 100000})
        Measure(sections, 10, 3);
    Measure(2000, 50, 3);
#ifdef CV2_BENCH_INIH
    CompareWithInih(2000, 50, 5);
    CompareWithInih(100000, 1, 5);
#else
    std::printf("inih not found at build time: no comparison\n");
#endif
    return 0;
}
