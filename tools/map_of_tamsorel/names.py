"""The names of the map: what each one names, and about where it stands."""

from .lettering import Style
from .paint import rgb

SEA_INK, LAND_INK = tuple(rgb("#2f4a56")), tuple(rgb("#3a281b"))
REGION_INK, WOOD_INK = tuple(rgb("#7a3b22")), tuple(rgb("#38401f"))

STYLES = {
    "ocean": Style(108, True, 0.16, SEA_INK),
    "sea": Style(84, True, 0.12, SEA_INK),
    "bay": Style(44, True, 0.04, SEA_INK),
    "region": Style(56, False, 0.42, REGION_INK, 0.92),
    "land": Style(46, False, 0.30, REGION_INK, 0.92),
    "range": Style(42, False, 0.34, LAND_INK),
    "hills": Style(36, False, 0.16, LAND_INK),
    "forest": Style(42, True, 0.05, WOOD_INK),
    "desert": Style(52, True, 0.14, REGION_INK),
    "marsh": Style(38, True, 0.03, WOOD_INK),
    "lake": Style(36, True, 0.02, SEA_INK),
    "island": Style(44, True, 0.05, LAND_INK),
    "isle": Style(44, True, 0.05, LAND_INK),
    "cape": Style(38, True, 0.02, LAND_INK),
    "river": Style(34, True, 0.07, SEA_INK),
    "place": Style(58, False, 0.01, (0.16, 0.10, 0.07)),
}
# What may lie under a name: the sea only, the land only, or anything.
UNDER = {"ocean": "sea", "sea": "sea", "bay": "sea", "region": "foot", "land": "foot", "range": "foot",
         "hills": "land", "forest": "land", "desert": "foot", "marsh": "any", "lake": "any",
         "island": "sea", "isle": "land", "cape": "sea"}

# Text, kind, longitude, latitude, turn and bend in degrees, how far it may be moved (pixels).
NAMES = (
    ("Sea of Orrimel", "ocean", -2.5, 10.6, 0, 16, 160),
    ("Hallow Sea", "sea", -36.4, 38.0, 0, 10, 240),
    ("Skeldine Sea", "sea", -4.6, 56.0, 0, -10, 160),
    ("Pellane Sea", "sea", 24.5, 50.6, 12, 10, 160),
    ("Sea of Quarl", "sea", 42.6, 26.6, 62, 10, 200),
    ("Vessamar", "ocean", 29.0, 2.8, 0, 0, 220),
    ("The Still Water", "sea", -26.0, 4.2, 0, 8, 180),
    ("Ulmar Deep", "sea", -28.5, 23.4, 0, 8, 220),
    ("Gulf of Dravel", "bay", 16.2, 15.9, 0, -8, 120),
    ("Sarrow Bay", "bay", -14.8, 27.2, 0, 0, 120),
    ("Bight of Istrane", "bay", -1.6, 19.6, 18, 6, 160),
    ("Ulmet Roads", "bay", -25.2, 29.3, 0, 0, 110),
    ("Ollmar Sound", "bay", 0.4, 49.6, 0, 0, 170),
    ("Wendfirth", "bay", -27.2, 41.2, 0, 0, 170),
    ("Straits of Corrend", "sea", 34.6, 44.4, 44, 6, 160),
    ("Merrel Water", "bay", 35.3, 18.6, 0, 0, 130),
    ("Tamrey Passage", "bay", 20.0, 9.6, 62, 0, 140),
    ("Bay of Harvel", "bay", 36.6, 30.0, 0, 0, 120),
    ("Vossen Haven", "bay", 21.6, 7.4, 0, 0, 150),
    ("Ebb Roads", "bay", 5.6, 15.2, 0, 0, 110),
    ("Nordrel Sound", "bay", 15.6, 55.2, -28, 0, 140),

    ("HESTMARCH", "region", -15.2, 42.2, -6, 6, 200),
    ("WENDERVALE", "region", -14.4, 35.6, 0, 6, 170),
    ("SOLVENNE", "region", -5.6, 29.2, 10, 6, 150),
    ("ISTRAVEL", "region", 6.6, 30.8, 0, 8, 170),
    ("KESSARY", "region", 7.6, 23.2, 0, 8, 170),
    ("DRAVENMARK", "region", 20.6, 20.4, 16, 8, 260),
    ("QUARLANE", "region", 27.0, 34.0, 40, 8, 200),
    ("PELLANE", "region", 22.4, 41.0, 6, 8, 200),
    ("OTHREND", "region", 36.0, 53.2, 52, 0, 170),
    ("SESSARA", "region", 6.4, 1.0, 0, 6, 170),
    ("ORRIMEL", "region", -16.2, 8.2, 4, 8, 150),
    ("SKELLAND", "land", 5.2, 42.9, 0, 6, 150),
    ("VOSSMARK", "land", 24.6, 15.6, 76, 0, 150),
    ("ULMAR", "land", -18.2, 27.6, -84, 0, 150),

    ("KELLDRIN SPINE", "range", 6.4, 35.9, 0, -4, 120),
    ("RAVEN SCARPS", "range", 17.4, 32.6, 42, 6, 140),
    ("Hestfells", "hills", -5.0, 43.6, 58, 0, 110),
    ("Dravel Heights", "hills", 28.6, 17.4, 87, 8, 110),
    ("Brannick Fells", "hills", 20.0, 43.4, 0, 4, 90),
    ("Heights of Quarl", "hills", 33.6, 31.2, 74, 0, 90),
    ("Ulvar Hills", "hills", -28.0, 33.4, 0, 0, 120),
    ("Nessen Fells", "hills", -15.2, 49.4, 0, 8, 110),
    ("Orrim Peaks", "hills", -15.8, 10.8, 4, 8, 90),

    ("Wendwold", "forest", -17.0, 39.2, 0, 0, 90),
    ("Morwold", "forest", -12.4, 40.4, -8, 6, 120),
    ("Sollenwood", "forest", -10.4, 33.6, 0, 6, 150),
    ("Skelwood", "forest", 10.2, 51.2, 0, 6, 150),
    ("Pellanwood", "forest", 23.6, 37.2, 30, 0, 170),
    ("Vosswold", "forest", 27.0, 7.8, 0, 0, 140),
    ("Harvelwood", "forest", 36.4, 34.4, 0, 0, 150),
    ("Sands of Ammerel", "desert", 19.5, 25.3, 12, 6, 60),
    ("The Drouth", "desert", 29.6, 28.4, 24, 0, 150),
    ("Ebbfen", "marsh", 9.8, 15.2, 0, 0, 110),
    ("Hestmire", "marsh", -15.8, 46.0, 0, 0, 130),
    ("Kessfen", "marsh", 14.0, 22.4, 0, 0, 130),
    ("Solmere", "lake", -1.4, 33.6, 0, 0, 110),
    ("Harvelmere", "lake", 17.6, 39.0, 0, 0, 110),

    ("Farrenholm", "isle", -32.6, 50.2, -20, 0, 170),
    ("Nordrel", "isle", 22.4, 55.7, 0, 0, 150),
    ("Tamrey", "island", 15.8, 9.0, 0, 0, 150),
    ("Lundrey", "island", 40.8, 10.2, 0, 0, 150),
    ("Kerrolay", "island", 38.2, 5.4, 0, 0, 150),
    ("The Strewn Isles", "island", -25.2, 16.0, 0, 0, 170),
    ("The Orrimels", "island", -7.4, 17.6, -8, 0, 150),
    ("Gannory", "island", -20.6, 57.6, 0, 0, 170),
    ("The Gullstones", "island", 40.2, 17.8, 0, 0, 170),
    ("Skerries of Wend", "island", -29.6, 43.4, 0, 0, 190),
    ("Lone Hest", "island", -31.6, 10.4, 0, 0, 190),
    ("Cape Ulvar", "cape", -31.6, 29.4, 0, 0, 130),
    ("Cape Corrend", "cape", 30.2, 45.9, 0, 0, 130),
    ("Cape Vosser", "cape", 25.0, 5.0, 0, 0, 120),
    ("Nessenhorn", "cape", -23.4, 49.2, 0, 0, 90),
    ("Cape Quarl", "cape", 38.4, 23.2, 0, 0, 130),
)

# River, longitude and latitude near which its name should run.
RIVERS = (
    ("Istrel", 0.6, 31.0), ("Morvel", -10.6, 37.6), ("Hest", -17.9, 44.2), ("Solve", -5.4, 29.8),
    ("Paldrin", 12.0, 28.4), ("Ammerin", 22.4, 21.2), ("Harvel", 22.6, 40.2), ("Quarr", 31.4, 24.4),
    ("Kessune", 8.4, 25.6), ("Orril", -15.4, 7.2),
    ("Lunnel", 28.0, 36.0),
)
