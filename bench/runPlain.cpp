#include "bench/measure.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>
#include <vector>

// The main program of the benchmarks without Google Benchmark: one argument, the number of
// repetitions; the medians go to the standard output in the form of Google Benchmark's JSON.

namespace
{

using Clock = std::chrono::steady_clock;

struct Row {
    std::string name;
    Pelmora::Bench::Batch batch;
    std::int64_t count = 1; ///< of calls that take long enough to be timed
    std::vector<double> nanoseconds = {};
};

std::vector<Row>& rows()
{
    static std::vector<Row> all;
    return all;
}

double nanoseconds(const Row& row)
{
    const auto start = Clock::now();
    row.batch(row.count);
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

void Pelmora::Bench::add(std::string name, Batch batch)
{
    rows().push_back({std::move(name), std::move(batch)});
}

int main(int argc, char** argv)
{
    constexpr double longEnough = 5e7;
    const int repetitions = argc > 1 ? std::atoi(argv[1]) : 15;
    for (Row& row : rows())
        while (nanoseconds(row) < longEnough)
            row.count *= 2;
    std::mt19937 random;
    for (int i = 0; i < repetitions; ++i) {
        std::shuffle(rows().begin(), rows().end(), random);
        for (Row& row : rows())
            row.nanoseconds.push_back(nanoseconds(row) / static_cast<double>(row.count));
    }
    std::cout << "{\"benchmarks\": [";
    const char* separator = "\n";
    for (const Row& row : rows()) {
        std::cout << separator << R"({"run_name": ")" << row.name
                  << R"(", "aggregate_name": "median", "time_unit": "ns", "cpu_time": )"
                  << median(row.nanoseconds) << '}';
        separator = ",\n";
    }
    std::cout << "\n]}\n";
}
