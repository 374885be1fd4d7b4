box1=3;
--
box2=Inputs+box1;
--
system_dependent(12,'off');figure;plot(box2);grid on;
--
