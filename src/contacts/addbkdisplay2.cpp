#include "contacts/addbkdisplay2.h"

#include "contacts/contact_book.h"
#include "forms/form_names.h"

namespace tarnwell::contacts {
namespace {

constexpr record_book::CellLine kLines[] = {
    {.caption = "Address", .entry = 2, .two_lines = true},
    {.caption = "City, St, Zip", .entry = 4, .is_city = true},
    {"Job Title", 13},
    {"Company Name", 14},
    {"Telephone Number", 7},
    {"Bus. Phone Number", 20, "Bus. Ph -"},
    {"Home Email Address", 10},
};

constexpr record_book::CellPlaces kPlaces{.picture_tops = {0.85, 3.35, 5.85, 8.35},
                                          .picture_lefts = {0.1, 4.15},
                                          .text_tops = {1.25, 3.75, 6.25, 8.75},
                                          .text_middles = {3.25, 7.32}};

// A contact has no birthday: as it always was, the address is looked at in its place.
constexpr int kBirthday = 2;

}  // namespace

ADDBKDISPLAY2::ADDBKDISPLAY2(forms::Context& context)
    : PicturePages(context,
                   {.form_name = forms::form_names::kContactPictures,
                    .caption = "Tools and Program Information - Business Contacts Picture Display",
                    .book = {ContactBook(), kLines, kBirthday, kPlaces},
                    .list = " Business Contacts... ",
                    .head = "Business Contacts Pictures - Page No. ",
                    .with_pictures = "Only Those with Pictures",
                    .help = 3022}) {}

}  // namespace tarnwell::contacts
