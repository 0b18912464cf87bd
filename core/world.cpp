#include "core/world.h"

namespace tourvane {

namespace {

constexpr const char* kInstruments[4] = {"Vocals", "Guitar", "Bass", "Drums"};

constexpr const char* kMaleNames[30] = {
    "Aaron ",  "Adam ",   "Ben ",     "Bryan ", "Brian ", "Chris ", "Carl ",   "Dave ",
    "Darren ", "Steven ", "Richard ", "Gary ",  "Harry ", "Ian ",   "Josh ",   "Mike ",
    "Matt ",   "Neil ",   "Paul ",    "Peter ", "Ryan ",  "Jack ",  "Gareth ", "James ",
    "Jason ",  "Keith ",  "Lewis ",   "Dylan ", "Reece ", "John "};

constexpr const char* kFemaleNames[30] = {
    "Anne ",    "Beth ",    "Joanne ", "Jessica ",   "Hannah ",   "Hayley ",  "Jen ",    "Sarah ",
    "Lindsay ", "Emily ",   "Emma ",   "Charlotte ", "Maria ",    "Rachel ",  "Monica ", "Kaye ",
    "Mia ",     "Alison ",  "Mary ",   "Alice ",     "Becky ",    "Annette ", "Louise ", "Sandra ",
    "Tracy ",   "Georgia ", "Linda ",  "Rhia ",      "Brittany ", "Nicole "};

constexpr const char* kSurnames[30] = {
    "Johnson", "Carpenter",  "Smith", "Jones",   "Del Ray",  "Thompson", "Richards", "Stevens",
    "Jacobs",  "Hargreaves", "Hill",  "Smythe",  "Wright",   "Marshall", "Peacock",  "Edwards",
    "Jackson", "Miller",     "Young", "Francis", "McGrath",  "Cook",     "Miles",    "Hewitt",
    "Warren",  "De Bourg",   "Casey", "Masters", "Peterson", "Lee"};

// "Wierd" is the game's own spelling, kept as it stands.
constexpr const char* kTitleFirst[20] = {"Wild",   "Extremes of", "Troubled", "Blue",    "Cold",
                                         "Hot",    "Wicked",      "Kickin'",  "Twisted", "Midnight",
                                         "Silent", "Funny",       "Wierd",    "Red",     "Morning",
                                         "Silver", "World",       "Ugly",     "Black",   "Shocked"};

constexpr const char* kTitleSecond[20] = {
    " Vibes",   " Velvet", " Metal",    " Beats",   " Terror",     " Love",    " Emotions",
    " Grooves", " Music",  " Bass",     " Voltage", " Aggression", " Bliss",   " Wonder",
    " Pain",    " Anger",  " Serenity", " Funk",    " Party",      " Feelings"};

struct Venue {
    const char* name;
    Integer fame;
    Integer ticket;
};
constexpr Venue kVenueTable[5] = {{"The Rose and Crown", 10, 2},
                                  {"The Queens Head", 60, 3},
                                  {"Town Hall", 200, 4},
                                  {"Nitro Nightclub", 260, 6},
                                  {"The Plaza Music Hall", 310, 7}};

}  // namespace

void loadsongwords(Game& g) {
    g.rec.songweeks = 10;
    for (int i = 1; i <= 20; ++i) {
        g.rec.titlefirst[i] = kTitleFirst[i - 1];
        g.rec.titlesecond[i] = kTitleSecond[i - 1];
    }
}

void loadvenues(Game& g) {
    for (int i = 1; i <= kVenues; ++i) {
        g.rec.venuename[i] = kVenueTable[i - 1].name;
        g.rec.venuefame[i] = kVenueTable[i - 1].fame;
        g.rec.ticketprice[i] = kVenueTable[i - 1].ticket;
    }
}

void loadnames(Game& g) {
    Module1& r = g.rec;
    for (int slot = 1; slot <= kMemberSlots; ++slot) r.instrument[slot] = kInstruments[slot - 1];
    for (int i = 1; i <= 30; ++i) r.malename[i] = kMaleNames[i - 1];
    for (int i = 1; i <= 30; ++i) r.femalename[i] = kFemaleNames[i - 1];
    for (int i = 1; i <= 30; ++i) r.surname[i] = kSurnames[i - 1];
}

}  // namespace tourvane
