// The rules of the ions in the plainest form that states them: the shipped form has to give the
// same results to the last bit and to take the same random numbers. Indices run from 1.
#pragma once

#include <cmath>
#include <functional>

namespace quendal::reference {

struct PlainIon {
    double x = 0;
    double y = 0;
    bool negative = false;
    bool active = false;
    bool deposited = false;
    bool atLeft = false;
    bool atRight = false;
    double rest = 0;
};

struct PlainIons {
    static constexpr double W = 355;
    static constexpr double H = 215;
    static constexpr double r = 0.025 * W;

    int ionCount = 20;
    int mode = 0;
    bool fastIons = false;
    int leftPlate = 0;
    int rightPlate = 0;
    PlainIon ion[41];
    std::function<double()> rand;

    void step() {
        for (int i = 1; i <= 40; i++) {
            if (ion[i].active) {
                stepIon(i);
            }
        }
    }

    bool drawnLeft(int i) const {
        if (mode == 1 || mode == 3) {
            return ion[i].negative;
        }
        return (mode == 2 || mode == 4) && !ion[i].negative;
    }

    bool drawnRight(int i) const {
        if (mode == 1 || mode == 3) {
            return !ion[i].negative;
        }
        return (mode == 2 || mode == 4) && ion[i].negative;
    }

    void stepDeposited(int i) {
        const bool held = (drawnLeft(i) && ion[i].atLeft) || (drawnRight(i) && ion[i].atRight);
        if (held) {
            ion[i].rest = ion[i].rest + 5;
            if (ion[i].rest > i * 5) {
                ion[i].rest = i * 5;
            }
            return;
        }
        ion[i].rest = ion[i].rest - (fastIons ? 8 : 4);
        if (ion[i].rest <= 0) {
            ion[i].rest = 0;
            ion[i].deposited = false;
            ion[i].atLeft = false;
            ion[i].atRight = false;
        }
    }

    void collide(int i, double step) {
        for (int j = i + 1; j <= ionCount; j++) {
            if (!ion[j].active) {
                continue;
            }
            if (std::fabs(ion[j].x - ion[i].x) < 2 * r && std::fabs(ion[j].y - ion[i].y) < 2 * r) {
                if (ion[i].x < ion[j].x) {
                    ion[i].x = ion[i].x - rand() * step / 2;
                    ion[j].x = ion[j].x + rand() * step / 2;
                } else {
                    ion[j].x = ion[j].x - rand() * step / 2;
                    ion[i].x = ion[i].x + rand() * step / 2;
                }
                if (ion[i].y < ion[j].y) {
                    ion[i].y = ion[i].y - rand() * step / 2;
                    ion[j].y = ion[j].y + rand() * step / 2;
                } else {
                    ion[j].y = ion[j].y - rand() * step / 2;
                    ion[i].y = ion[i].y + rand() * step / 2;
                }
            }
        }
    }

    void pullRight(int i, double step) {
        if (ion[i].x < rightPlate) {
            ion[i].x = ion[i].x + (step + rand() * 0.2);
        } else if (ion[i].x > rightPlate) {
            ion[i].x = ion[i].x + (-step + rand() * 0.2);
        }
        if (std::fabs(ion[i].x - rightPlate) < step && ion[i].y <= H * 0.5) {
            ion[i].deposited = true;
            ion[i].atRight = true;
        }
    }

    void pullLeft(int i, double step) {
        if (ion[i].x > leftPlate) {
            ion[i].x = ion[i].x - (step + rand() * 0.2);
        } else if (ion[i].x < leftPlate) {
            ion[i].x = ion[i].x + (step - rand() * 0.2);
        }
        if (std::fabs(ion[i].x - leftPlate) < step && ion[i].y <= H * 0.5) {
            ion[i].deposited = true;
            ion[i].atLeft = true;
        }
    }

    void stepIon(int i) {
        double step = double(i) / double(ionCount) * 1.5 + 0.5;
        if (fastIons) {
            step = double(i) / double(ionCount) * 4 + 1.5;
        }
        if (ion[i].deposited) {
            stepDeposited(i);
            return;
        }
        ion[i].x = ion[i].x + (2 * rand() - 1);
        ion[i].y = ion[i].y + (2 * rand() - 1);
        if (ion[i].x >= 4 * r && ion[i].x <= W - 4 * r) {
            collide(i, step);
        }
        if (drawnRight(i)) {
            pullRight(i, step);
        }
        if (drawnLeft(i)) {
            pullLeft(i, step);
        }
        if (mode != 0 && ion[i].y > H * 0.5) {
            ion[i].y = ion[i].y - (step + rand() * 0.2);
        }
        if (ion[i].x < r) {
            ion[i].x = r;
        }
        if (ion[i].x > W - r) {
            ion[i].x = W - r;
        }
        if (ion[i].y < r) {
            ion[i].y = r;
        }
        if (ion[i].y > H - r) {
            ion[i].y = H - r;
        }
    }
};

} // namespace quendal::reference
