box1=3;
box2=sin(box1);
box3=box2
