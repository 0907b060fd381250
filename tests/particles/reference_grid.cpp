// The group rules in their plainest form, step by step.
#include "particles/reference_particle.h"

#include "shell/session/session.h"

#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace quendal::reference {

namespace {

int roundEven(double value) {
    return static_cast<int>(std::nearbyint(value));
}

} // namespace

bool Collection::react() {
    for (int i = 1; i <= count(); ++i) {
        item(i).placed = false;
        item(i).reacting = false;
    }
    bool result = false;
    for (int i = 1; i <= count(); ++i) {
        Particle& one = item(i);
        if (one.placed) {
            continue;
        }
        int best = 0;
        double bestDistance = 0;
        for (int j = 1; j <= count(); ++j) {
            if (j == i || item(j).placed || !one.canReact(item(j))) {
                continue;
            }
            const double d = one.dist(item(j));
            if (best == 0 || d < bestDistance) {
                best = j;
                bestDistance = d;
            }
        }
        if (best == 0) {
            continue;
        }
        Particle& other = item(best);
        const double cx = (one.posX + other.posX) / 2;
        const double cy = (one.posY + other.posY) / 2;
        if (one.fade == 0 && other.fade == 0) {
            one.targetX = cx - 1;
            one.targetY = cy;
            other.targetX = cx + 1;
            other.targetY = cy;
        }
        one.placed = other.placed = true;
        one.reacting = other.reacting = true;
        result = true;
    }
    return result;
}

void Collection::grid() {
    const int n = count();
    if (n == 0) {
        return;
    }
    for (int i = 1; i <= n; ++i) {
        if (!item(i).solid) {
            continue;
        }
        for (int j = i + 1; j <= n; ++j) {
            if (!item(j).solid) {
                std::swap(mol[static_cast<std::size_t>(i - 1)],
                          mol[static_cast<std::size_t>(j - 1)]);
                break;
            }
        }
    }
    int freeCount = 0;
    for (int i = 1; i <= n; ++i) {
        if (item(i).solid) {
            item(i).targetY = 100;
        } else {
            ++freeCount;
        }
    }
    double ratio = volume / 5.0;
    if (ratio == 0) {
        ratio = 1;
    }
    int rows = roundEven(ratio);
    if (rows < 2) {
        rows = 2;
    }
    int columns = roundEven(static_cast<double>(freeCount) / rows);
    if (columns < 1) {
        columns = 1;
    }
    while (rows * columns < freeCount) {
        ++rows;
    }
    std::array<int, 101> order{};
    std::array<int, 101> counts{};
    std::array<int, 101> step{};
    for (int i = 1; i <= n; ++i) {
        item(i).placed = false;
    }
    for (int i = 1; i <= n; ++i) {
        if (!item(i).solid) {
            const int kind = item(i).sort();
            if (kind > 0) {
                ++counts.at(static_cast<std::size_t>(kind));
            }
        }
    }
    for (int k = 1; k <= 100; ++k) {
        order[k] = k;
        if (counts[k] > 0) {
            step[k] = roundEven(static_cast<double>(freeCount) / counts[k]);
        }
    }
    for (int k = 1; k <= 20; ++k) {
        for (int l = k + 1; l <= 20; ++l) {
            if (counts[l] < counts[k] && !(counts[l] < 1)) {
                std::swap(order[k], order[l]);
                std::swap(step[k], step[l]);
                std::swap(counts[k], counts[l]);
            }
        }
    }
    int rest = freeCount;
    for (int k = 1; k <= 20; ++k) {
        if (counts[k] > 0) {
            step[k] = roundEven(static_cast<double>(rest) / counts[k]);
            rest -= counts[k];
        }
    }
    std::vector<int> slot(static_cast<std::size_t>(rows) * columns + 1, 0);
    for (int k = 1; k <= 20; ++k) {
        if (step[k] < 1) {
            continue;
        }
        int c = 0;
        for (int s = 1; s <= n; ++s) {
            if (!item(s).solid && slot[s] == 0) {
                ++c;
                if (c % step[k] == 0) {
                    slot[s] = order[k];
                    --counts[k];
                    if (counts[k] == 0) {
                        break;
                    }
                }
            }
        }
        if (counts[k] > 0) {
            for (int s = 1; s <= n; ++s) {
                if (!item(s).solid && slot[s] == 0) {
                    slot[s] = order[k];
                    --counts[k];
                    if (counts[k] == 0) {
                        break;
                    }
                }
            }
        }
    }
    if (freeCount > 200) {
        throw std::out_of_range("too many particles");
    }
    const SessionState& tables = session();
    for (int i = 1; i <= freeCount; ++i) {
        const int t = tables.GridShuffle[freeCount][i];
        if (t >= 1 && t <= freeCount && t != i) {
            std::swap(slot[i], slot[t]);
        }
    }
    int idx = 0;
    for (int r = 1; r <= rows; ++r) {
        for (int c = 1; c <= columns && idx + 1 <= freeCount; ++c) {
            ++idx;
            const double gx = c * 100.0 / (columns + 1) + tables.GridJitterX[freeCount][idx];
            const double gy = r * 100.0 / (rows + 1) + tables.GridJitterY[freeCount][idx];
            int best = 0;
            double bestDistance = 500;
            for (int i = 1; i <= n; ++i) {
                if (item(i).placed || item(i).solid || item(i).sort() != slot[idx]) {
                    continue;
                }
                const double d = item(i).distCord(gx, gy);
                if (best == 0 || d < bestDistance) {
                    best = i;
                    bestDistance = d;
                }
            }
            if (best != 0) {
                if (!item(best).reacting) {
                    item(best).targetX = static_cast<int>(gx);
                    item(best).targetY = static_cast<int>(gy);
                }
                item(best).placed = true;
            }
        }
    }
    improve(true);
}

void Collection::snap() {
    const int n = count();
    if (n == 0) {
        return;
    }
    const int columns = roundEven(std::sqrt(n));
    int rows = n / columns;
    while (rows * columns < n) {
        ++rows;
    }
    for (int i = 1; i <= n; ++i) {
        item(i).placed = false;
    }
    int idx = 0;
    for (int r = 1; r <= rows; ++r) {
        for (int c = 1; c <= columns && idx + 1 <= n; ++c) {
            ++idx;
            const double gx = c * 100.0 / (columns + 1);
            const double gy = r * 100.0 / (rows + 1);
            int best = 0;
            double bestDistance = 500;
            for (int i = 1; i <= n; ++i) {
                if (item(i).placed) {
                    continue;
                }
                const double d = item(i).distCord(gx, gy);
                if (best == 0 || d < bestDistance) {
                    best = i;
                    bestDistance = d;
                }
            }
            if (!item(best).reacting) {
                item(best).targetX = gx;
                item(best).targetY = gy;
            }
            item(best).placed = true;
        }
    }
    improve(false);
}

void Collection::improve(bool kindsApart) {
    const int n = count();
    const auto stays = [&](const Particle& p) { return p.reacting || (kindsApart && p.solid); };
    bool again = true;
    while (again) {
        again = false;
        for (int i = 1; i <= n && !again; ++i) {
            Particle& one = item(i);
            if (stays(one)) {
                continue;
            }
            const double d0 = one.distTarget();
            for (int j = 1; j <= n; ++j) {
                Particle& other = item(j);
                if (j == i || stays(other) || (kindsApart && other.sort() != one.sort())) {
                    continue;
                }
                if (other.distCord(one.targetX, one.targetY) < d0 &&
                    one.distCord(other.targetX, other.targetY) < d0) {
                    std::swap(one.targetX, other.targetX);
                    std::swap(one.targetY, other.targetY);
                    again = true;
                    break;
                }
            }
        }
    }
}

} // namespace quendal::reference
