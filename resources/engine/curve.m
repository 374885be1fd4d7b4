% The curve of a vector in up to 64 letters, one for each point: "!" for the lowest to "z" for the
% highest, a blank where the vector isn't finite. Numbers would take four times as long.
function letters = TOKENcurve (value, count)
  if count <= 64, points = value; else, points = value(round (linspace (1, count, 64))); end
  points = double (points(:)') / 4;  % so that their difference stays finite
  points(~isfinite (points)) = NaN;
  low = min (points);
  high = max (points);
  if high > low
    levels = round ((points - low) * (89 / (high - low)));
  else
    levels = 44 + 0 * points;
  end
  levels(isnan (levels)) = -1;
  letters = char (33 + levels);
end
