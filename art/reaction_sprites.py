"""The sprites of the reaction scenes. Usage: reaction_sprites.py DATA_FOLDER [SVG_FOLDER]

The scripts name the points at which they put the sprites, in an 800 x 600 stage. Partners meet at 350 and 450; what
belongs together there is laid out here at once and then cut into its sprites, so that nothing jumps when a joined
picture takes the place of two.
"""

import sys

import particles as p
import structures as s
from basin import basin
from particles import SQUEEZE, at

MEET = 50 / SQUEEZE  # px of a picture from the middle of the stage to the place of a partner
LEFT_CARD, RIGHT_CARD = 345, 466.5  # on the stage, where two cards meet
JOINED_WIDTH = RIGHT_CARD - LEFT_CARD + s.CARD_WIDTH
JOINED_CARD = (LEFT_CARD + RIGHT_CARD) / 2
TO_PAIR = 0.92  # in sizes of the letters, where the loose bond of a lone pair begins


def half_way(first, second):
    return (first[0] + second[0]) / 2, (first[1] + second[1]) / 2


def partners(left, right, place=0):
    """Cuts two particles out of their common picture; `place` is how far the script puts the right one down."""
    return left.moved(MEET, 0).picture(), right.moved(-MEET, -place).picture()


def left_cards(start, end, products):
    """Cards of water and of oxonium: places of the first sprite before and after sliding, and of the product."""
    card = s.Card(end, LEFT_CARD, "Wasser")
    s.water(card, (-6, 0))
    ion = s.Card(products, LEFT_CARD, "Oxonium-Ion")
    s.oxonium(ion, (-24, 0))
    assert start[1] == end[1]
    return card.picture, ion.picture


def hydrogen_chloride():
    o, cl = (-MEET - 4, 0), (-MEET - 4 + 130, 0)
    water, oxonium = p.water(o, 0), p.oxonium(o, 0)
    acid, chloride = p.hydrogen_chloride(cl, 180), p.chloride(cl)
    handed = half_way(at(o, 0, p.OH_BOND), at(cl, 180, p.HCL_BOND))
    sprites = {"h2ohcl": p.meeting(water, [("Cl", cl)], handed).picture()}
    sprites["h2o"], sprites["hcl"] = partners(water, acid)
    sprites["h3o"], sprites["cl"] = partners(oxonium, chloride)
    return sprites | chloride_cards()


def chloride_cards():
    water, oxonium = left_cards((245, 135), (345, 135), (377, 123))
    acid = s.Card((467, 110), RIGHT_CARD, "Chlorwasserstoff")
    s.chlorine(acid, (28, 0), 90, 0, -90)
    s.proton(acid, (28, 0), (-44, 0), 0.66)
    ion = s.Card((498, 124), RIGHT_CARD, "Chlorid-Ion")
    s.chlorine(ion, (0, 0), 90, 0, -90, 180)
    ion.charge((44, -32), "-")
    joined = s.Card((410, 135), JOINED_CARD, "Protonenübergang", JOINED_WIDTH)
    o, h, cl = (-96, 0), (24, 0), (122, 0)
    s.taking_water(joined, o, 0)
    s.chlorine(joined, cl, 90, 0, -90)
    s.proton(joined, cl, h, 0.66)
    joined.loose_bond(o, h, TO_PAIR)
    joined.flow((o[0] + 30, -13), (h[0] - 6, -20), 36)
    joined.flow((66, -8), (cl[0] - 20, -22), 34)
    return {"_h2o": water, "_h3o": oxonium, "_hcl": acid.picture, "_cl": ion.picture, "_h2ohcl": joined.picture}


def both_ways(card, left, right, back):
    """The proton between two bases; either one's lone pair can take it. The word for the way back stands at `back`."""
    h = half_way(left, right)
    card.atom("H", h, s.PROTON)
    card.loose_bond(left, h, TO_PAIR)
    card.loose_bond(right, h, TO_PAIR)
    card.flow((left[0] + 30, left[1] - 12), (h[0] - 6, h[1] - 20), 32)
    card.flow((right[0] - 30, right[1] + 12), (h[0] + 6, h[1] + 20), -32)
    card.note((h[0] + 26, h[1] - 30), "hin")
    card.note(back, "zurück")


def water_with_water():
    o, second = (-MEET - 4, 0), (-MEET - 4 + 123, -15)
    towards, back = 7, 187
    donor, hydroxide = p.donor_water(second, back), p.hydroxide(second, back)
    water, oxonium = p.water(o, towards), p.oxonium(o, towards)
    sprites = {"h2oh2o": p.meeting(water, hydroxide.atoms, half_way(o, second)).picture()}
    sprites["h2o"], sprites["h2o2"] = partners(water, donor, -15)
    sprites["h3o"], sprites["oh"] = partners(oxonium, hydroxide, -15)
    return sprites | water_cards()


def water_cards():
    water, oxonium = left_cards((245, 140), (345, 140), (377, 128))
    donor = s.Card((466, 140), RIGHT_CARD, "Wasser")
    s.donor_water(donor, (14, -18))
    ion = s.Card((498, 129), RIGHT_CARD, "Hydroxid-Ion")
    s.hydroxide(ion, (-6, -18), 180)
    ion.charge((32, -52), "-")
    joined = s.Card((404, 140), JOINED_CARD, "Protonenübergang", JOINED_WIDTH)
    left, right = (-96, 0), (96, -12)
    s.taking_water(joined, left, 3)
    s.hydroxide(joined, right, 183)
    both_ways(joined, left, right, (-46, 58))
    return {"_h2o": water, "_h3o": oxonium, "_h2o2": donor.picture, "_oh": ion.picture, "_h2oh2o": joined.picture}


def acetic_acid():
    o, acid_o = (-MEET - 4, 20), (-MEET - 4 + 120.5, 48)
    towards, back, bond = -13, 167, 60
    water, oxonium = p.water(o, towards), p.oxonium(o, towards)
    acid, acetate = p.acetic_acid(acid_o, bond, back), p.acetate(acid_o, bond)
    sprites = {"h2ohac": p.meeting(water, acetate.atoms, half_way(o, acid_o)).picture()}
    sprites["h2o"], sprites["hac"] = partners(water, acid, -5)
    sprites["h3o"], sprites["ac"] = partners(oxonium, acetate, -10)
    return sprites | acetate_cards()


def acetate_cards():
    water, oxonium = left_cards((245, 140), (345, 140), (377, 128))
    acid = s.Card((466, 110), RIGHT_CARD, "Essigsäure", size=s.SMALL)
    place = (-38, 48)
    s.acetate(acid, place)
    s.proton(acid, place, at(place, 168, acid.length))
    ion = s.Card((498, 129), RIGHT_CARD, "Acetat-Ion", size=s.SMALL)
    s.acetate(ion, (-46, 48), 150)
    ion.charge((-90, 56), "-")
    joined = s.Card((404, 140), JOINED_CARD, "Protonenübergang", JOINED_WIDTH, s.SMALL)
    left, right = (-156, 6), (42, 48)
    s.taking_water(joined, left, -12)
    s.acetate(joined, right, 168)
    both_ways(joined, left, right, (-121, 66))
    return {"_h2o": water, "_h3o": oxonium, "_hac": acid.picture, "_ac": ion.picture, "_h2ohac": joined.picture}


def neutralisation():
    """Oxonium and hydroxide meet 90 apart, hydroxide 10 higher; the waters stand level."""
    towards, back = 5, 185
    left, right = (-5, 0), (6, 0)
    return {
        "h3o": p.oxonium(left, towards).picture(),
        "oh": p.hydroxide(right, back).picture(),
        "h2o": p.water(left, towards).picture(),
        "h2o-2": p.donor_water((right[0], right[1] - 10), back).picture(),
        "cl": p.chloride((0, 0)).picture(),
        "na": p.ion("Na", "+", (0, 0)).picture(),
    }


def precipitation():
    """Silver and chloride meet 80 apart and come to rest on the floor, 32 below their point. They start 100 below
    the upper end of the stage, and nothing may reach more than 50 upwards from there."""
    return {
        "cl": p.ion("Cl", "-", (14, -6), 38 / 54).picture(),
        "ag": p.ion("Ag", "+", (-15, -1), 33 / 46).picture(),
        "na": p.ion("Na", "+", (0, 0), 0.75).picture(),
        "no3": p.nitrate((0, 7), 0.62).picture(),
    }


FOLDERS = {
    "h2o-hcl": ("wanne", hydrogen_chloride),
    "h2o-h2o": ("wanne", water_with_water),
    "h2o-hac": ("wanne", acetic_acid),
    "h3o-cl": ("wanne4", neutralisation),
    "fällung": ("wanne", precipitation),
}


def main(arguments):
    if len(arguments) not in (2, 3):
        print("usage: reaction_sprites.py DATA_FOLDER [SVG_FOLDER]", file=sys.stderr)
        return 2
    twins = arguments[2] if len(arguments) == 3 else None
    for folder, (trough, sprites) in FOLDERS.items():
        for name, picture in ({trough: basin()} | sprites()).items():
            picture.write(f"{arguments[1]}/{folder}", name, twins and f"{twins}/{folder}")
        print(f"  {folder}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
