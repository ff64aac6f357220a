"""All the models, one class for each picker."""

from body import Height, Temperature, Weight
from movement import Distance, Pace, Speed
from timing import Duration, HeartRate
from wheel import Bpm, Calories

PICKERS = {
    "bpm": Bpm,
    "calories": Calories,
    "distance": Distance,
    "duration": Duration,
    "heartrate": HeartRate,
    "height": Height,
    "pace": Pace,
    "speed": Speed,
    "temperature": Temperature,
    "weight": Weight,
}
