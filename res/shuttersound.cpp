// Writes the shutter sound, run once by the build: a camera's mirror going up, the curtain running,
// and both falling back, as three short bursts of noise that fade away.
//
//   shuttersound photo.wav

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr int sampleRate = 44100;
constexpr double length = 0.26; // s

struct Burst {
    double start; // s
    double fade; // s until it has lost two thirds
    double loudness; // 1 is full scale
    double brightness; // 0 (dull) to 1 (pure noise)
    double ring; // Hz of the metal that rings with it
};

constexpr Burst bursts[] = {
    {0.005, 0.010, 0.55, 0.35, 1900},
    {0.030, 0.016, 0.30, 0.80, 3200},
    {0.115, 0.014, 0.70, 0.30, 1400},
};

// The same noise in every build.
class Noise {
public:
    double next()
    {
        m_state = m_state * 1664525U + 1013904223U;
        return double(m_state >> 8) / double(1U << 23) - 1;
    }

private:
    std::uint32_t m_state = 2009;
};

void add(const Burst &burst, std::vector<double> *sound)
{
    const double pi = std::acos(-1.0);
    Noise noise;
    double dull = 0;
    for (auto i = std::size_t(burst.start * sampleRate); i < sound->size(); ++i) {
        const double time = double(i) / sampleRate - burst.start;
        dull += burst.brightness * (noise.next() - dull);
        const double tone = 0.25 * std::sin(2 * pi * burst.ring * time);
        (*sound)[i] += burst.loudness * std::exp(-time / burst.fade) * (dull + tone);
    }
}

void put(std::string *file, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        file->push_back(char(value >> (8 * i) & 0xff)); // the format's byte order
}

std::string waveFile(const std::vector<double> &sound)
{
    const auto bytes = std::uint32_t(2 * sound.size());
    std::string file = "RIFF";
    put(&file, 36 + bytes, 4);
    file += "WAVEfmt ";
    put(&file, 16, 4);
    put(&file, 1, 2); // plain samples
    put(&file, 1, 2); // one channel
    put(&file, sampleRate, 4);
    put(&file, 2 * sampleRate, 4); // bytes a second
    put(&file, 2, 2); // bytes a sample
    put(&file, 16, 2); // bits a sample
    file += "data";
    put(&file, bytes, 4);
    for (const double sample : sound)
        put(&file, std::uint32_t(std::int32_t(32767 * std::clamp(sample, -1.0, 1.0))), 2);
    return file;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    std::vector<double> sound(std::size_t(length * sampleRate));
    for (const Burst &burst : bursts)
        add(burst, &sound);
    std::ofstream file(argv[1], std::ios::binary);
    file << waveFile(sound);
    file.close();
    return file ? 0 : 1;
}
