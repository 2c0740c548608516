#pragma once
// Tables keyed by node and branch names.  The toolkit's own string hash is
// seeded against hostile keys and costs about 150 ns a name on this
// hardware; a network's names are the engineer's own, and the numbering of
// 32,000 sections looks up each one several times, so a plain FNV-1a over
// the UTF-16 units does the job at a fraction of that.

#include <QString>

#include <cstdint>
#include <unordered_map>

struct HashNombre {
    size_t operator()(const QString& s) const noexcept {
        uint64_t h = 14695981039346656037ull;
        for (const QChar c : s) {
            h ^= c.unicode();
            h *= 1099511628211ull;
        }
        return size_t(h);
    }
};

template <class V>
using MapaNombres = std::unordered_map<QString, V, HashNombre>;
