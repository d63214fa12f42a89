// Sound files as other programs write them, with what a recipe here has a place for and what it has not.
#pragma once

namespace tw::test {

// Every use of hops and other ingredients, a grain behind a sugar, two waters, a mash, an equipment, ages,
// display texts, and a tag of one program alone. The last recipe has no lines, so that only its fields tell
// in which units it was typed.
inline constexpr const char* kXmlFile = R"(<?xml version="1.0" encoding="UTF-8"?>
<RECIPES>
<RECIPE><NAME>Harvest Ale</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE>
<STYLE><NAME>Garden Ale</NAME><CATEGORY>Ale</CATEGORY><VERSION>1</VERSION><CATEGORY_NUMBER>91</CATEGORY_NUMBER>
<STYLE_LETTER>B</STYLE_LETTER><STYLE_GUIDE>House</STYLE_GUIDE><TYPE>Ale</TYPE><OG_MIN>1.04</OG_MIN>
<OG_MAX>1.06</OG_MAX><FG_MIN>1.008</FG_MIN><FG_MAX>1.016</FG_MAX><IBU_MIN>20</IBU_MIN><IBU_MAX>45</IBU_MAX>
<COLOR_MIN>4</COLOR_MIN><COLOR_MAX>14</COLOR_MAX><PROFILE>Hay and bread.</PROFILE></STYLE>
<EQUIPMENT><NAME>Shed</NAME><VERSION>1</VERSION><BOIL_SIZE>26</BOIL_SIZE><BATCH_SIZE>21</BATCH_SIZE>
<TUN_VOLUME>40</TUN_VOLUME><HOP_UTILIZATION>95</HOP_UTILIZATION></EQUIPMENT>
<BREWER>Ida</BREWER><ASST_BREWER>Jo</ASST_BREWER><BATCH_SIZE>21</BATCH_SIZE><BOIL_SIZE>26</BOIL_SIZE>
<BOIL_TIME>75</BOIL_TIME><EFFICIENCY>73.5</EFFICIENCY>
<HOPS>
<HOP><NAME>Meadow</NAME><VERSION>1</VERSION><ALPHA>9.5</ALPHA><AMOUNT>0.012</AMOUNT><USE>First Wort</USE>
<TIME>75</TIME><FORM>Pellet</FORM><BETA>4.1</BETA></HOP>
<HOP><NAME>Cascade</NAME><VERSION>1</VERSION><ALPHA>5.75</ALPHA><AMOUNT>0.0283495</AMOUNT><USE>Boil</USE>
<TIME>20</TIME><FORM>Leaf</FORM><ORIGIN>US</ORIGIN><DISPLAY_AMOUNT>1 oz</DISPLAY_AMOUNT></HOP>
<HOP><NAME>Cascade</NAME><VERSION>1</VERSION><ALPHA>5.75</ALPHA><AMOUNT>0.015</AMOUNT><USE>Aroma</USE>
<TIME>10</TIME><FORM>Plug</FORM></HOP>
<HOP><NAME>Meadow</NAME><VERSION>1</VERSION><ALPHA>9.5</ALPHA><AMOUNT>0.01</AMOUNT><USE>Mash</USE><TIME>60</TIME></HOP>
<HOP><NAME>Meadow</NAME><VERSION>1</VERSION><ALPHA>9.5</ALPHA><AMOUNT>0.033</AMOUNT><USE>Dry Hop</USE>
<TIME>7200</TIME></HOP>
</HOPS>
<FERMENTABLES>
<FERMENTABLE><NAME>Barn Malt</NAME><VERSION>1</VERSION><TYPE>Grain</TYPE><AMOUNT>4.309</AMOUNT><YIELD>79.5</YIELD>
<COLOR>3.1</COLOR><ORIGIN>Hill</ORIGIN><MOISTURE>4</MOISTURE></FERMENTABLE>
<FERMENTABLE><NAME>Beet Sugar</NAME><VERSION>1</VERSION><TYPE>Sugar</TYPE><AMOUNT>0.25</AMOUNT><YIELD>100</YIELD>
<COLOR>1</COLOR><ADD_AFTER_BOIL>TRUE</ADD_AFTER_BOIL></FERMENTABLE>
<FERMENTABLE><NAME>Toasted Barley</NAME><VERSION>1</VERSION><TYPE>Adjunct</TYPE><AMOUNT>0.4</AMOUNT>
<YIELD>61.25</YIELD><COLOR>25</COLOR><RECOMMEND_MASH>TRUE</RECOMMEND_MASH></FERMENTABLE>
</FERMENTABLES>
<MISCS>
<MISC><NAME>Gypsum</NAME><VERSION>1</VERSION><TYPE>Water Agent</TYPE><USE>Mash</USE><TIME>60</TIME>
<AMOUNT>0.0035</AMOUNT><AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT><NOTES>Stir.</NOTES></MISC>
<MISC><NAME>Rock Moss</NAME><VERSION>1</VERSION><TYPE>Fining</TYPE><USE>Boil</USE><TIME>15</TIME>
<AMOUNT>0.007</AMOUNT><AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT></MISC>
<MISC><NAME>Chalk</NAME><VERSION>1</VERSION><TYPE>Water Agent</TYPE><USE>Mash</USE><TIME>0</TIME>
<AMOUNT>0.002</AMOUNT><AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT></MISC>
<MISC><NAME>Elder</NAME><VERSION>1</VERSION><TYPE>Herb</TYPE><USE>Secondary</USE><TIME>4320</TIME>
<AMOUNT>0.5</AMOUNT></MISC>
<MISC><NAME>Oak</NAME><VERSION>1</VERSION><TYPE>Flavor</TYPE><USE>Primary</USE><TIME>1440</TIME>
<AMOUNT>0.05</AMOUNT><AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT></MISC>
<MISC><NAME>Clear Drops</NAME><VERSION>1</VERSION><TYPE>Other</TYPE><USE>Bottling</USE><TIME>0</TIME>
<AMOUNT>0.01</AMOUNT></MISC>
</MISCS>
<YEASTS>
<YEAST><NAME>House Ale</NAME><VERSION>1</VERSION><TYPE>Ale</TYPE><FORM>Dry</FORM><AMOUNT>0.0115</AMOUNT>
<AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT><LABORATORY>Barn</LABORATORY><PRODUCT_ID>7</PRODUCT_ID>
<ATTENUATION>76</ATTENUATION><FLOCCULATION>High</FLOCCULATION></YEAST>
<YEAST><NAME>Cask - Second</NAME><VERSION>1</VERSION><TYPE>Ale</TYPE><FORM>Liquid</FORM><AMOUNT>0.05</AMOUNT>
<ADD_TO_SECONDARY>TRUE</ADD_TO_SECONDARY></YEAST>
</YEASTS>
<WATERS>
<WATER><NAME>Well</NAME><VERSION>1</VERSION><AMOUNT>20</AMOUNT><CALCIUM>80</CALCIUM><BICARBONATE>150</BICARBONATE>
<SULFATE>40</SULFATE><CHLORIDE>20</CHLORIDE><SODIUM>12</SODIUM><MAGNESIUM>6</MAGNESIUM></WATER>
<WATER><NAME>Rain</NAME><VERSION>1</VERSION><AMOUNT>10</AMOUNT><CALCIUM>2</CALCIUM><BICARBONATE>3</BICARBONATE>
<SULFATE>1</SULFATE><CHLORIDE>2</CHLORIDE><SODIUM>0</SODIUM><MAGNESIUM>0</MAGNESIUM></WATER>
</WATERS>
<MASH><NAME>One rest</NAME><VERSION>1</VERSION><GRAIN_TEMP>18</GRAIN_TEMP><MASH_STEPS>
<MASH_STEP><NAME>Rest</NAME><VERSION>1</VERSION><TYPE>Infusion</TYPE><INFUSE_AMOUNT>14</INFUSE_AMOUNT>
<STEP_TEMP>66</STEP_TEMP><STEP_TIME>60</STEP_TIME></MASH_STEP></MASH_STEPS></MASH>
<NOTES>Picked on a dry day.
Rested &amp; chilled.</NOTES><TASTE_NOTES>Hay, then bread.</TASTE_NOTES><TASTE_RATING>41.5</TASTE_RATING>
<OG>1.051</OG><FG>1.0125</FG><FERMENTATION_STAGES>2</FERMENTATION_STAGES><PRIMARY_AGE>6</PRIMARY_AGE>
<PRIMARY_TEMP>19</PRIMARY_TEMP><DATE>21 Sep 2013</DATE><CARBONATION>2.3</CARBONATION>
<PRIMING_SUGAR_NAME>Corn Sugar (Dextrose)</PRIMING_SUGAR_NAME><CARBONATION_TEMP>18</CARBONATION_TEMP>
<EST_OG>1.051 sg</EST_OG><IBU>33.5 IBUs</IBU><IBU_METHOD>Rager</IBU_METHOD><BARN_NUMBER>12</BARN_NUMBER>
</RECIPE>
<RECIPE><NAME>Tin Kettle</NAME><VERSION>1</VERSION><TYPE>Extract</TYPE>
<STYLE><NAME>Garden Ale</NAME><CATEGORY>Ale</CATEGORY><VERSION>1</VERSION><CATEGORY_NUMBER>91</CATEGORY_NUMBER>
<STYLE_LETTER>B</STYLE_LETTER><STYLE_GUIDE>House</STYLE_GUIDE><TYPE>Ale</TYPE><OG_MIN>1.04</OG_MIN>
<OG_MAX>1.06</OG_MAX><FG_MIN>1.008</FG_MIN><FG_MAX>1.016</FG_MAX><IBU_MIN>20</IBU_MIN><IBU_MAX>45</IBU_MAX>
<COLOR_MIN>4</COLOR_MIN><COLOR_MAX>14</COLOR_MAX></STYLE><BREWER>Ida</BREWER>
<BATCH_SIZE>18.92705892</BATCH_SIZE><BOIL_SIZE>11.356235352</BOIL_SIZE><BOIL_TIME>60</BOIL_TIME>
<HOPS><HOP><NAME>Meadow</NAME><VERSION>1</VERSION><ALPHA>0</ALPHA><AMOUNT>0.0425243</AMOUNT><USE>Boil</USE>
<TIME>60</TIME></HOP><HOP><NAME>Orange Peel</NAME><VERSION>1</VERSION><ALPHA>0</ALPHA><AMOUNT>0.02</AMOUNT>
<USE>Boil</USE><TIME>5</TIME></HOP><HOP><NAME>Meadow</NAME><VERSION>1</VERSION><ALPHA>8</ALPHA><AMOUNT>0.0141748</AMOUNT>
<USE>Boil</USE><TIME>1</TIME></HOP></HOPS>
<FERMENTABLES>
<FERMENTABLE><NAME>Pale Syrup</NAME><VERSION>1</VERSION><TYPE>Extract</TYPE><AMOUNT>2.721554</AMOUNT>
<YIELD>78</YIELD><COLOR>8</COLOR></FERMENTABLE>
<FERMENTABLE><NAME>Pale Powder</NAME><VERSION>1</VERSION><TYPE>Dry Extract</TYPE><AMOUNT>0.4535924</AMOUNT>
<YIELD>95</YIELD><COLOR>8</COLOR></FERMENTABLE>
</FERMENTABLES>
<MISCS/><YEASTS/><WATERS/><OG>1.049</OG><FG>1.013</FG><IBU>28 IBUs</IBU><CARBONATION>2.5</CARBONATION><FORCED_CARBONATION>TRUE</FORCED_CARBONATION>
<CARBONATION_TEMP>4</CARBONATION_TEMP></RECIPE>
<RECIPE><NAME>Soda</NAME><VERSION>1</VERSION><TYPE>Extract</TYPE><STYLE/><BREWER/><BATCH_SIZE>20</BATCH_SIZE>
<BOIL_SIZE>24</BOIL_SIZE><BOIL_TIME>10</BOIL_TIME><EFFICIENCY>72</EFFICIENCY><HOPS/><FERMENTABLES/><MISCS/><YEASTS/>
<WATERS/><FORCED_CARBONATION>TRUE</FORCED_CARBONATION><CARBONATION>2.1</CARBONATION>
<CARBONATION_TEMP>5</CARBONATION_TEMP><CARBONATION_USED>Kegged</CARBONATION_USED></RECIPE>
</RECIPES>
)";

// Every time at which something can be added, with the steps of mash, boil and fermentation to which they
// belong.
inline constexpr const char* kJsonFile = R"({"beerjson": {"version": 2.06, "recipes": [
{"name": "Harvest Ale", "type": "all grain", "author": "Ida", "coauthor": "Jo", "created": "2013-09-21",
 "batch_size": {"unit": "gal", "value": 5.5}, "efficiency": {"brewhouse": {"unit": "%", "value": 73.5},
 "mash": {"unit": "%", "value": 80}},
 "style": {"name": "Garden Ale", "category": "Ale", "category_number": 91, "style_letter": "B",
  "style_guide": "House", "type": "beer"},
 "ingredients": {
  "fermentable_additions": [
   {"name": "Barn Malt", "type": "grain", "origin": "Hill", "producer": "Barn", "grain_group": "base",
    "yield": {"fine_grind": {"unit": "%", "value": 79.5}, "fine_coarse_difference": {"unit": "%", "value": 1.5}},
    "color": {"unit": "Lovi", "value": 3.1}, "amount": {"unit": "lb", "value": 9.5}},
   {"name": "Beet Sugar", "type": "sugar", "yield": {"fine_grind": {"unit": "%", "value": 100}},
    "color": {"unit": "SRM", "value": 1}, "amount": {"unit": "oz", "value": 8},
    "timing": {"use": "add_to_boil", "time": {"unit": "min", "value": 5}}},
   {"name": "Toasted Barley", "type": "grain", "yield": {"potential": {"unit": "sg", "value": 1.0283}},
    "color": {"unit": "EBC", "value": 50}, "amount": {"unit": "kg", "value": 0.4}}],
  "hop_additions": [
   {"name": "Meadow", "alpha_acid": {"unit": "%", "value": 9.5}, "beta_acid": {"unit": "%", "value": 4.1},
    "form": "pellet", "amount": {"unit": "oz", "value": 0.5},
    "timing": {"use": "add_to_boil", "time": {"unit": "min", "value": 60}, "step": 1}},
   {"name": "Cascade", "alpha_acid": {"unit": "%", "value": 5.75}, "form": "leaf", "origin": "US",
    "amount": {"unit": "oz", "value": 1}, "timing": {"use": "add_to_boil", "time": {"unit": "min", "value": 20},
    "step": 2}},
   {"name": "Cascade", "alpha_acid": {"unit": "%", "value": 5.75}, "form": "plug",
    "amount": {"unit": "g", "value": 15}, "timing": {"use": "add_to_boil", "duration": {"unit": "min", "value": 10},
    "step": 3}},
   {"name": "Meadow", "alpha_acid": {"unit": "%", "value": 9.5}, "amount": {"unit": "g", "value": 10},
    "timing": {"use": "add_to_mash", "duration": {"unit": "min", "value": 60}}},
   {"name": "Meadow", "alpha_acid": {"unit": "%", "value": 9.5}, "amount": {"unit": "g", "value": 33},
    "timing": {"use": "add_to_fermentation", "duration": {"unit": "day", "value": 5}, "step": 1}}],
  "miscellaneous_additions": [
   {"name": "Gypsum", "type": "water agent", "amount": {"unit": "g", "value": 3.5},
    "timing": {"use": "add_to_mash", "time": {"unit": "min", "value": 0}}},
   {"name": "Rock Moss", "type": "fining", "amount": {"unit": "tsp", "value": 1},
    "timing": {"use": "add_to_boil", "time": {"unit": "min", "value": 15}}},
   {"name": "Elder", "type": "herb", "amount": {"unit": "each", "value": 3},
    "timing": {"use": "add_to_fermentation", "time": {"unit": "day", "value": 3}, "step": 2}},
   {"name": "Clear Drops", "type": "other", "amount": {"unit": "ml", "value": 10},
    "timing": {"use": "add_to_package"}}],
  "culture_additions": [
   {"name": "House Ale", "type": "ale", "form": "dry", "producer": "Barn", "product_id": "7",
    "attenuation": {"unit": "%", "value": 76}, "amount": {"unit": "pkg", "value": 1}}],
  "water_additions": [
   {"name": "Well", "producer": "Hill", "amount": {"unit": "l", "value": 30}, "calcium": {"unit": "ppm", "value": 80},
    "bicarbonate": {"unit": "ppm", "value": 150}, "sulfate": {"unit": "ppm", "value": 40},
    "chloride": {"unit": "ppm", "value": 20}, "sodium": {"unit": "ppm", "value": 12},
    "magnesium": {"unit": "ppm", "value": 6}}]},
 "mash": {"name": "One rest", "grain_temperature": {"unit": "C", "value": 18}, "mash_steps": [
  {"name": "Rest", "type": "infusion", "amount": {"unit": "l", "value": 14},
   "step_temperature": {"unit": "C", "value": 66}, "step_time": {"unit": "min", "value": 60}}]},
 "boil": {"pre_boil_size": {"unit": "gal", "value": 7}, "boil_time": {"unit": "min", "value": 75}, "boil_steps": [
  {"name": "Heat", "start_temperature": {"unit": "C", "value": 70}, "end_temperature": {"unit": "C", "value": 100}},
  {"name": "Boil", "start_temperature": {"unit": "C", "value": 100}},
  {"name": "Stand", "start_temperature": {"unit": "C", "value": 85}}]},
 "fermentation": {"name": "Two steps", "fermentation_steps": [
  {"name": "Barrel", "start_temperature": {"unit": "C", "value": 19}, "step_time": {"unit": "day", "value": 6}},
  {"name": "Cellar", "start_temperature": {"unit": "C", "value": 10}, "step_time": {"unit": "day", "value": 9}}]},
 "carbonation": 2.3, "notes": "Picked on a dry day.\nRested & chilled.",
 "taste": {"notes": "Hay, then bread.", "rating": 41.5},
 "original_gravity": {"unit": "sg", "value": 1.051}, "final_gravity": {"unit": "sg", "value": 1.0125},
 "alcohol_by_volume": {"unit": "%", "value": 5.1}, "ibu_estimate": {"method": "Rager"},
 "color_estimate": {"unit": "SRM", "value": 9}},
{"name": "Tin Kettle", "type": "extract", "author": "Ida", "batch_size": {"unit": "l", "value": 19},
 "efficiency": {"brewhouse": {"unit": "%", "value": 100}},
 "ingredients": {"fermentable_additions": [
   {"name": "Pale Syrup", "type": "extract", "yield": {"fine_grind": {"unit": "%", "value": 78}},
    "color": {"unit": "Lovi", "value": 8}, "amount": {"unit": "kg", "value": 2.7}},
   {"name": "Pale Powder", "type": "dry extract", "yield": {"fine_grind": {"unit": "%", "value": 95}},
    "color": {"unit": "Lovi", "value": 8}, "amount": {"unit": "g", "value": 454}}],
  "hop_additions": [{"name": "Orange Peel", "alpha_acid": {"unit": "%", "value": 0},
    "amount": {"unit": "g", "value": 20}, "timing": {"use": "add_to_boil", "time": {"unit": "min", "value": 5}}},
   {"name": "Meadow", "alpha_acid": {"unit": "%", "value": 8}, "amount": {"unit": "g", "value": 40},
    "timing": {"use": "add_to_boil", "time": {"unit": "hr", "value": 1}}}]}}
]}})";

}  // namespace tw::test
