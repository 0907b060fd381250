"""The learning animations: played, broken off, clicked at and without their pictures."""

import animation_break
import animation_conductivity
import animation_data
import animation_ends
import animation_lens
import animation_log
import animation_play

FAMILIES = (
    animation_play,
    animation_break,
    animation_lens,
    animation_log,
    animation_conductivity,
    animation_ends,
    animation_data,
)


def scripts():
    for family in FAMILIES:
        yield from family.scripts()
